#pragma once

#include "ut/utString.h"
#include "vmr/vmrTableInstance.h"

/// Makes `to` a working copy of `from`: the same file, the overrides, and the defaults as they were changed
/// in memory. Returns 0, changing nothing, when `from` is invalid.
int sgl_copy_resource_table(vmrTableInstance const & from, vmrTableInstance & to);

/// Writes every registered resource at its built-in default to "Default" in the directory of `file`, making
/// the directory; `file` becomes the path written. Returns 0 when the directory cannot be made.
int create_default_resources(utString & file);

/// Loads the table of `file` into `instance`. Returns 0 when the file was missing or empty and a default file
/// was made in its place; `file` is then that one.
int set_up_resources(utString & file, vmrTableInstance & instance);

/// Copies every file of that extension from one directory into the other, which is made. For the application
/// program.
void sgl_fill_dir_from_dir(utString const & from_dir, utString const & to_dir, utString const & extension);
