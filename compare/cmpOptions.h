#pragma once

#include <optional>
#include <string>
#include <vector>

class cmpTexts;

/// One of the two files as the user names it.
struct cmpFile {
    std::string path;
    std::string format;               ///< empty to find it from the file
    std::vector<std::string> options; ///< NAME:VALUE, for its reader
};

/// What is asked for on a command line.
struct cmpOptions {
    cmpFile a;
    cmpFile b;
    double relative = 1.0e-6; ///< of volumes, areas and lengths
    double absolute = 1.0e-4; ///< of places, in millimetres
    double deflection = 0.1;  ///< of triangles from surfaces, in millimetres
    bool counts_only = false;
    std::optional<double> timeout; ///< seconds, 0 for none; by the size of the files when not given
    std::optional<bool> names;     ///< compared where both files have them when not given
    std::optional<bool> colours;
    std::optional<bool> layers;
    std::optional<bool> structure; ///< assemblies and instances
    bool json = false;
    bool quiet = false;
    bool all = false; ///< the table has the parts that are the same, too
};

/// What becomes of a command line before anything is compared.
struct cmpWords {
    std::optional<cmpOptions> options; ///< none when the program ends here
    std::string shown;                 ///< what --help and --version print
    std::string problem;               ///< what is wrong with the words
    bool json = false;                 ///< the problem, too, is to be told as JSON
};

cmpWords cmp_read_words(int argc, char const * const * argv, cmpTexts const & texts);
