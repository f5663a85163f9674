#include "sdb/sdbSchemaDir.h"

#include "ap/apPosixOperations.h"

namespace {

sdbSearchPath with_user_first(apPathName const & user, sdbSearchPath const & installation)
{
    auto directories = installation.directories();
    if (!user.empty())
        directories.insert(directories.begin(), user);
    return sdbSearchPath(std::move(directories));
}

} // namespace

sdbSchemaDir::sdbSchemaDir(apPathName const & user, sdbSearchPath const & installation)
    : m_user(user.utf8()), m_installation(installation.ut_path_string(nullptr)),
      m_all(with_user_first(user, installation))
{
}

template <class Accept>
utString sdbSchemaDir::find(utString const & name, Accept accept) const
{
    apPosixFileOperations const files;
    if (!name.empty())
        for (auto const & directory : m_all.directories())
            if (auto const path = directory.adjoin(apFileName::from_utf8(name.view())); accept(files, path))
                return utString(path.utf8());
    return utString::make_invalid();
}

utString sdbSchemaDir::find_file(utString const & name) const
{
    return find(name, [](auto const & files, auto const & path) { return files.is_file(path); });
}

utString sdbSchemaDir::find_dir(utString const & name) const
{
    return find(name, [](auto const & files, auto const & path) { return files.is_directory(path); });
}

int sdbSchemaDir::create_user_dir() const
{
    if (m_user.empty())
        return 0;
    apPosixFileOperations const files;
    auto const path = apPathName::from_utf8(m_user.view());
    return files.make_directories(path) && files.is_writable_directory(path) ? 1 : 0;
}
