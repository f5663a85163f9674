#pragma once

#include <cstddef>
#include <string_view>

enum class brepForm { text, binary, neither };

// What the beginning of a file tells. Both forms have a line with a version; the text form may have a line of
// the interactive test program before it.
struct brepHeader {
    brepForm form = brepForm::neither;
    int version = 0;
    std::size_t sections = 0; // where they begin, behind that line

    static constexpr int newest_text = 3;
    static constexpr int newest_binary = 4;

    bool too_new() const { return version > (form == brepForm::text ? newest_text : newest_binary); }
};

brepHeader brep_header(std::string_view content);

// True when the content has a header of a version that is known and, in the text form, the line at its end
// that names the chief shape. The binary form has no mark at its end.
bool brep_is_whole(std::string_view content);
