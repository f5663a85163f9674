#pragma once

#include <cstdint>
#include <string_view>

// What the text of an IGES file shows before it is parsed. A file has records of 80 characters with the
// letter of their section in column 73: S start, G global, D directory, P parameters and one T, terminate,
// which counts the others.
struct igesFile {
    // The first record belongs to the start section.
    bool begins = false;
    // The file is of the compressed or the binary form, which no record of 80 characters follows.
    bool other_form = false;
    // The terminate record is there.
    bool ends = false;
    // Records of the directory, and as many as the terminate record counts; 0 when it has no readable count.
    std::int64_t directory_records = 0;
    std::int64_t directory_records_promised = 0;

    explicit igesFile(std::string_view text);

    bool is_whole() const
    {
        return ends && (directory_records_promised == 0 || directory_records == directory_records_promised);
    }
};
