#pragma once

#include <vector>

#include "ap/apIStringEncoding.h"
#include "ap/apPathName.h"
#include "ut/utString.h"

/// An ordered list of directories in which files of one kind are looked for. The directories need not exist.
class sdbSearchPath {
public:
    sdbSearchPath() = default;
    explicit sdbSearchPath(std::vector<apPathName> directories) : m_directories(std::move(directories)) {}
    sdbSearchPath(sdbSearchPath const &) = default;
    sdbSearchPath & operator=(sdbSearchPath const &) = default;
    virtual ~sdbSearchPath() = default;

    /// The first directory, which is the user's own where the kind has one; `found` is false when there is
    /// none.
    apPathName directory_path(bool & found) const;

    /// The directories with vmrabsAppInfo::path_separator between them. A null encoding stands for UTF-8.
    utString ut_path_string(apIStringEncoding const * encoding) const;

    std::vector<apPathName> const & directories() const { return m_directories; }

    /// The path of the file in the first directory that has it; invalid when none has.
    apPathName find_file(apFileName const & name) const;

private:
    std::vector<apPathName> m_directories;
};
