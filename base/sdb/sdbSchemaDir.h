#pragma once

#include "sdb/sdbSearchPath.h"
#include "ut/utString.h"

/// The user's directory and the installation's directories for one kind of files.
class sdbSchemaDir {
public:
    sdbSchemaDir() = default;
    /// An empty `user` means that the user has no directory of this kind.
    sdbSchemaDir(apPathName const & user, sdbSearchPath const & installation);

    /// The path of the file, looked for in the user's directory first; invalid when there is none.
    utString find_file(utString const & name) const;
    /// The same for a directory.
    utString find_dir(utString const & name) const;

    utString const & user_dir() const { return m_user; } ///< empty when the user has none of this kind
    /// The installation's directories as text for vmrabsAppInfo::find_file_in_path.
    utString const & installation_path() const { return m_installation; }

    /// Makes the user's directory with all that is missing above it. 0 when it cannot be made or written, or
    /// when the kind has none.
    int create_user_dir() const;

private:
    template <class Accept>
    utString find(utString const & name, Accept accept) const;

    utString m_user;
    utString m_installation;
    sdbSearchPath m_all;
};
