#pragma once

#include <string>
#include <vector>

// What the command line asks for.
struct hostArguments {
    enum class Wish { job, help, version, nothing };
    Wish wish = Wish::job;
    // To be removed when the engine goes away.
    std::vector<std::string> folders;
    // The first word that is not understood, when nothing is to be done.
    std::string unknown;
};

hostArguments host_read_arguments(int argc, char const * const * argv);

// How to use the program, in one line and on one page.
extern char const * const host_usage;
extern char const * const host_help;
