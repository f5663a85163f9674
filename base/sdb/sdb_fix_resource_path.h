#pragma once

#include "ut/utString.h"

/// Puts a path into the form that the toolkit's resource loader wants: absolute, because the loader keeps the
/// path and the working directory may change, and without empty and "." components. Empty and invalid texts
/// stay as they are.
void sdb_fix_resource_path(utString & path);
