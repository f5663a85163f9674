#pragma once

#include <map>
#include <string>

#include "ap/apIProcessEnvironmentOperations.h"
#include "sdb/sdbHRKDirectory.h"
#include "sdb/sdbSchemaDir.h"
#include "sdb/sdbSearchPath.h"
#include "ut/utPtr.h"

class vmrabsAppInfo;

/// Says where each kind of file lies. The installation is a prefix, which is the parent of the program's
/// directory, and can be moved as a whole; the user's own files lie below <user base>/<product>:
///
///     kind                installation                   user
///     translators         lib/vmr/translators            translators
///     services            lib/vmr/services
///     message_catalogues  share/vmr/locale
///     help                share/vmr/help
///     product             share/vmr
///     resources           share/vmr/resources            resources
///     translator_cache    share/vmr/cache                cache
///     xrc                 share/vmr/xrc
///     toolkit             share/vmr, with the folder lib
///
/// The user's directory comes first in a search, so that what a user has saved wins over what was installed.
/// The exception is the search path of the translators: there the installation comes first, and a module of
/// the user adds formats but replaces none. Where other users may change the user's directory of translators,
/// or a file in it, it is left out of that path: whoever can write there could have any program run.
class sdbAppDirMap {
public:
    explicit sdbAppDirMap(utObserverPtr<apIProcessEnvironmentOperations const> environment);

    virtual sdbSearchPath const & search_path(sdbHRKDirectory kind) const; ///< empty for a kind not listed
    virtual sdbSchemaDir schema_dir(sdbHRKDirectory kind) const;

    /// Sets the map up from the directory of the program, which `volume` completes where paths have volumes,
    /// and the user's base directory. Returns 0 on success, 1 when the user's directories can not be made or
    /// written (the map is complete nevertheless), and 2 when the program's directory or the product is not
    /// named. Directories of the user are made by create_user_dir and by those who save, not here: nothing is
    /// left on the disk.
    virtual int initialise(utString const & volume, utString const & program_dir, apPathName const & product,
                           vmrabsAppInfo const * info, apPathName const & user_base,
                           apPathName const & temp_dir);
    virtual ~sdbAppDirMap() = default;

    apPathName const & prefix() const { return m_prefix; } ///< the installation
    apPathName const & user() const { return m_user; }     ///< the user's; empty when there is none
    /// What other users may change of the user's translators, which are left out then; empty when nothing, or
    /// when the user has none.
    std::string const & changeable_translators() const { return m_changeable_translators; }
    apPathName const & temp_dir() const { return m_temp_dir; } ///< for files that need not last

private:
    struct Kind {
        sdbSearchPath search;
        sdbSchemaDir schema;
    };
    sdbSearchPath translator_path(apPathName const & installed, apPathName const & own);
    apPathName absolute(apPathName const & path) const;

    utObserverPtr<apIProcessEnvironmentOperations const> m_environment;
    apPathName m_prefix;
    apPathName m_user;
    apPathName m_temp_dir;
    std::string m_changeable_translators;
    std::map<sdbHRKDirectory, Kind> m_kinds;
};
