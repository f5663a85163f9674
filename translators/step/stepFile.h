#pragma once

#include "sdk/sdkText.h"

#include <string>
#include <string_view>

// What the text of a STEP file shows before it is parsed, so that a file that is no use can be refused with
// its reason.
struct stepFile {
    // How many bytes a byte order mark takes at the begin.
    std::size_t mark = 0;
    // Only white space and comments come before the words ISO-10303-21;
    bool begins = false;
    // The last section is closed. Nothing but white space, comments and signatures should follow it.
    bool sections_end = false;
    // The words END-ISO-10303-21; are there.
    bool ends = false;
    // Where the word that closes the last section begins, when sections_end is true.
    std::size_t last_section_end = 0;
    // All characters beyond ASCII are UTF-8.
    bool is_utf8 = true;
    // What FILE_SCHEMA names, such as "AUTOMOTIVE_DESIGN", joined by commas.
    std::string schema;

    bool is_whole() const { return begins && sections_end && ends; }

    explicit stepFile(std::string_view text);
};
