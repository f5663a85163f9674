#pragma once

#include <filesystem>
#include <vector>

#include "s2s/s2sMessage.h"

/// The same file on the disk under whatever name; for a file that does not exist, the same place for it.
bool s2s_same_file(std::filesystem::path const & a, std::filesystem::path const & b);

/// Whether `file` is one of `others`, as above.
bool s2s_is_one_of(std::filesystem::path const & file, std::vector<std::filesystem::path> const & others);

/// Where a file of this name really lies: absolute, and with a symbolic link replaced by what it points to.
std::filesystem::path s2s_real_place(std::filesystem::path const & file);

/// Whether the file can serve as input: it is there, readable, an ordinary file, and its name is text.
s2sFailure s2s_check_input(std::filesystem::path const & file);

/// The part of it that is about what kind of file it is; one that is not there is of no wrong kind.
s2sFailure s2s_check_kind_of_input(std::filesystem::path const & file);

/// Whether a file of this name may be made or replaced. Folders are not looked at. A link that leads
/// elsewhere has to be this user's or the system's own: another user could lead anywhere.
s2sFailure s2s_check_output(std::filesystem::path const & file);
