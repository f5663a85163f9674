#include "sdb/sdbAppDirMap.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "ap/apChangeable.h"
#include "ap/apHome.h"
#include "ap/apPathSeparator.h"

namespace {

struct Place {
    sdbHRKDirectory kind;
    char const * installation; ///< below the prefix
    char const * user;         ///< below the user's directory; null when the user has none
};

constexpr Place places[] = {
    {sdbHRKDirectory::translators, "lib/vmr/translators", "translators"},
    {sdbHRKDirectory::services, "lib/vmr/services", nullptr},
    {sdbHRKDirectory::message_catalogues, "share/vmr/locale", nullptr},
    {sdbHRKDirectory::help, "share/vmr/help", nullptr},
    {sdbHRKDirectory::product, "share/vmr", nullptr},
    {sdbHRKDirectory::resources, "share/vmr/resources", "resources"},
    {sdbHRKDirectory::translator_cache, "share/vmr/cache", "cache"},
    {sdbHRKDirectory::xrc, "share/vmr/xrc", nullptr},
    {sdbHRKDirectory::toolkit, "share/vmr", nullptr},
};

// Permissions alone do not tell: a file system may be read-only or refuse directories. So one is made and
// removed, in the lowest directory that exists.
bool can_be_written(std::filesystem::path directory)
{
    std::error_code error;
    while (!std::filesystem::exists(directory, error)) {
        // A dangling link can be neither entered nor made.
        if (error || std::filesystem::is_symlink(directory, error) || directory == directory.parent_path() ||
            ap_is_home(directory))
            return false;
        directory = directory.parent_path();
    }
    auto probe = (directory / ".writable-XXXXXX").string();
    return ::mkdtemp(probe.data()) && ::rmdir(probe.c_str()) == 0;
}

} // namespace

sdbAppDirMap::sdbAppDirMap(utObserverPtr<apIProcessEnvironmentOperations const> environment)
    : m_environment(environment)
{
}

sdbSearchPath const & sdbAppDirMap::search_path(sdbHRKDirectory kind) const
{
    static sdbSearchPath const none;
    auto const found = m_kinds.find(kind);
    return found == m_kinds.end() ? none : found->second.search;
}

sdbSchemaDir sdbAppDirMap::schema_dir(sdbHRKDirectory kind) const
{
    auto const found = m_kinds.find(kind);
    return found == m_kinds.end() ? sdbSchemaDir() : found->second.schema;
}

apPathName sdbAppDirMap::absolute(apPathName const & path) const
{
    auto const whole =
        path.absolute() || !m_environment ? path : m_environment->current_directory().adjoin(path);
    auto text = std::filesystem::path(whole.utf8()).lexically_normal().string();
    while (text.size() > 1 && text.back() == apPathSeparator)
        text.pop_back();
    return apPathName::from_utf8(text);
}

sdbSearchPath sdbAppDirMap::translator_path(apPathName const & installed, apPathName const & own)
{
    auto const changeable = ap_changeable_by_others(own.utf8());
    if (changeable.empty())
        return sdbSearchPath({installed, own});
    // Where there is nothing to leave out there is nothing to tell.
    std::error_code error;
    if (std::filesystem::directory_iterator(own.utf8(), error) != std::filesystem::directory_iterator())
        m_changeable_translators = changeable;
    return sdbSearchPath({installed});
}

int sdbAppDirMap::initialise(utString const & volume, utString const & program_dir,
                             apPathName const & product, vmrabsAppInfo const *, apPathName const & user_base,
                             apPathName const & temp_dir)
{
    m_kinds.clear();
    m_prefix = {};
    m_user = {};
    m_temp_dir = temp_dir;
    m_changeable_translators.clear();
    if (program_dir.empty() || product.empty())
        return 2;

    m_prefix = absolute(apPathName::from_utf8((volume + program_dir).view())).directory();
    if (!user_base.empty())
        m_user = absolute(user_base).adjoin(product);
    bool writable = !m_user.empty();
    for (auto const & place : places) {
        auto const installed = m_prefix.adjoin(apPathName::from_utf8(place.installation));
        sdbSearchPath const installation({installed});
        auto & kind = m_kinds[place.kind];
        if (!place.user || m_user.empty()) {
            kind = {installation, sdbSchemaDir({}, installation)};
            continue;
        }
        auto const own = m_user.adjoin(apPathName::from_utf8(place.user));
        bool const translators = place.kind == sdbHRKDirectory::translators;
        kind.search = translators ? translator_path(installed, own) : sdbSearchPath({own, installed});
        kind.schema = sdbSchemaDir(own, installation);
        // Only the user puts modules in place, and may do so in a directory that the program cannot write.
        if (!translators)
            writable = writable && can_be_written(own.utf8());
    }
    return writable ? 0 : 1;
}
