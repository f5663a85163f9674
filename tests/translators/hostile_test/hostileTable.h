#pragma once

#include <array>
#include <string>
#include <vector>

// Output formats in the order of the table.
inline constexpr std::array<char const *, 4> hostile_formats{"STEP", "IGES", "BREP", "STL"};

// What has to become of one file, whatever the output.
struct HostileRow {
    std::string file;
    std::string status;
    // Parts of texts that the user is told.
    std::vector<std::string> told = {};
    // Of a file that is translated: its verdict, the faces that are left, and the bodies at all places.
    // Without a verdict the output is not held against the source, which would take longer than all the rest.
    std::string verdict = {};
    int faces = 0;
    int bodies = 0;
};

std::vector<HostileRow> const & hostile_table();
