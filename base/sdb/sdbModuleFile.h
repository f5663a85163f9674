#pragma once

#include <string>

/// Why the file at `path` cannot be a loadable module of this machine, or an empty text when it can. Looks at
/// the header of the file only: nothing of it is loaded or run.
std::string sdb_module_file_problem(std::string const & path);
