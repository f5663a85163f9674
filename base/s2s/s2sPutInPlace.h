#pragma once

#include <filesystem>
#include <vector>

#include "s2s/s2sMessage.h"

/// Where the files of the folder `staging` are to go when `output` is put in place; that of the output itself
/// comes last.
std::vector<std::filesystem::path> s2s_places_of(std::filesystem::path const & staging,
                                                 std::filesystem::path const & output);

/// Moves every file of the folder `staging` into the folder of `output`, on the same file system, the file
/// named like `output` last. Fails, with all that lay in the output's folder as before, when that file is
/// missing, when a file would replace one of `inputs`, or when a step is refused. A file that replaces
/// another takes over its permissions and is on the disk before the other goes, so that not even a power
/// failure loses both.
s2sFailure s2s_put_in_place(std::filesystem::path const & staging, std::filesystem::path const & output,
                            std::vector<std::filesystem::path> const & inputs);
