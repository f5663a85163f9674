#pragma once

#include "ut/utString.h"

/// The last component of a path, with its extension.
utString ExtractFile(utString const & path);

/// Makes one backslash of several that follow each other; a pair at the very beginning stays.
void sgl_fix_backslashes(utString & path);
