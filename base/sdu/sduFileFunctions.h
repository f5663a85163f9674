#pragma once

#include "sdu/sduFileError.h"
#include "ut/utString.h"

/// Looks at what a path names, following links: sduFileExists for a file of any kind, sduFileDirectoryExists
/// for a directory, and otherwise the reason why nothing was found.
sduFileError sdu_check_file_exists(utString const & path);
sduFileError sdu_check_directory_exists(utString const & path);

/// Makes one directory that its owner can read, write and enter: sduFileDone when it was made,
/// sduFileDirectoryExists when there is one.
sduFileError sdu_make_directory(utString const & path);
/// Deletes a file or a link; a directory or a protected file stays.
sduFileError sdu_remove_file(utString const & path);
/// Copies the content. The target appears whole or not at all, is replaced when it exists, and belongs to the
/// caller as a new file does. A protected target stays as it is.
sduFileError sdu_copy_file(utString const & from, utString const & to);
/// The name of a file in the directory for temporary files that does not exist, without extension. It is not
/// made.
utString sdu_make_temp_file_name();
