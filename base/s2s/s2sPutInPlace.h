#pragma once

#include <filesystem>
#include <vector>

#include "s2s/s2sMessage.h"
#include "s2s/s2sStagingFolder.h"

/// Where the files of the folder `staging` are to go when `output`, the one that it was made for, is put in
/// place; that of the output itself comes last.
std::vector<std::filesystem::path> s2s_places_of(s2sStagingFolder const & staging,
                                                 std::filesystem::path const & output);

/// Moves every ordinary file of the folder `staging` into the folder beside which it was made, the file named
/// like `output` last. Fails, with all that lay in the output's folder as before, when that file is missing,
/// when a file would replace one of `inputs`, or when a step is refused. A file that replaces another takes
/// over its permissions. All are on the disk before the first of them is moved, and their new names when this
/// returns, so that not even a power failure loses both the old and the new. Works in the folders that
/// `staging` holds open, whatever their paths lead to by now.
s2sFailure s2s_put_in_place(s2sStagingFolder const & staging, std::filesystem::path const & output,
                            std::vector<std::filesystem::path> const & inputs);
