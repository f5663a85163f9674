#pragma once

#include "kit/kitProgram.h"

#include <gtest/gtest.h>

#include <set>

/// One command line: what is typed, and what is there afterwards. `IN` files lie in the folder in which the
/// program runs; the folder "out" is there and empty.
struct cliCase {
    char const * name;
    std::vector<std::string> words; ///< behind the program's name
    int exit_status = 0;
    std::vector<std::string> says;           ///< texts on standard output
    std::set<std::string> files_in_out = {}; ///< all that lies in "out" afterwards
    std::vector<std::string> says_not = {};
};

inline std::ostream & operator<<(std::ostream & stream, cliCase const & one)
{
    return stream << one.name;
}

/// The program in a folder of its own with a home of its own, without a display.
class cliTest : public testing::Test {
protected:
    cliTest();

    kitProgramResult run(std::vector<std::string> const & words, bool as_nobody = false,
                         std::function<void(pid_t)> meanwhile = nullptr) const;
    void check(cliCase const & one) const;
    std::set<std::string> files_in(std::string const & folder) const;

    /// A cube of 10 mm as STEP, which the program made from facets; made once for all tests.
    static std::string const & cube_step();

    kitTempFolder folder;
};

/// A cube with an edge of 10 as text STL.
std::string cli_cube_stl();
