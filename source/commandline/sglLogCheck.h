#pragma once

#include "ut/utString.h"

#include <vector>

/// Of the words of a command line, the one that names the same file as its log and for another purpose: the
/// input, the output or a resource file. Under whatever name, also one of a file that is still to be made.
/// Invalid when there is none.
utString sgl_file_that_is_log(std::vector<utString> const & words, utString const & log);
