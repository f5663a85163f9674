#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

// Output formats in the order of the table.
inline constexpr std::array<char const *, 4> faults_formats{"STEP", "IGES", "BREP", "STL"};

// What a right translation of one file shows, in millimetres and mm3.
struct FaultsRow {
    std::string file;
    std::vector<double> solids; // volumes, smallest first
    // For each format; not verified are those that have no place for anything in the file, so that there is
    // no output.
    std::array<std::string, 4> verdicts{"verified", "verified", "verified", "verified"};
    // Parts of texts that the user is told for any output, and besides for one.
    std::vector<std::string> told = {};
    std::map<std::string, std::vector<std::string>> told_of_output = {};
    int shells = 0; // 0: one for each solid
    int loose_edges = 0;
    int loose_points = 0;
    // Loose faces besides those of the solids.
    int loose_faces = 0;
    // Volume of bodies that are hidden, which STL leaves out.
    double hidden = 0;
};

std::vector<FaultsRow> const & faults_table();
