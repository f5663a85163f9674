#pragma once

#include "sdk/sdkResult.h"
#include "stl/stlMesh.h"

#include <Message_ProgressRange.hxx>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What the parsers need to know, and where they put what they find.
struct stlInput {
    std::string file;     // for messages
    double unit = 1;      // length of the file's unit in millimetres
    double tolerance = 0; // in millimetres; corners this close become one
    std::vector<stlMesh> solids;
    std::int64_t ignored_bytes = 0; // behind the last triangle of a binary file
};

enum class stlForm { text, binary, neither };

// Tells the forms apart by the length that a binary file announces, and by its first bytes: there are binary
// files whose header begins as text files do.
stlForm stl_form(std::string_view content);

// True when the content ends where its form says: with the last triangle that a binary file announces, with
// the end of a solid in a text file.
bool stl_is_whole(std::string_view content);
