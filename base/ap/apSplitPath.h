#pragma once

#include "ut/utString.h"

/// Takes a path apart as text.
class apSplitPath {
public:
    /// `directory` comes out without a separator at its end, but for the root, and `extension` without its
    /// dot. A name that only begins or only ends with a dot has no extension and keeps the dot.
    static void split_path(utString const & path, utString & directory, utString & name,
                           utString & extension);
};
