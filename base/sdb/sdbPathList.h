#pragma once

#include "co/coStrings.h"
#include "ut/utString.h"

/// The files of one directory.
class sdbPathList {
public:
    explicit sdbPathList(utString const & directory) : m_directory(directory) {}

    /// Appends the paths of the regular files with the extension, given with or without its dot, in the order
    /// of their names. The case of the extension does not count. A directory that cannot be read gives none.
    void search_by_extension(utStringcoDynArr & paths, utString const & extension) const;

private:
    utString m_directory;
};
