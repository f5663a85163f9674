#include "ap/apFolder.h"

#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int folder_flags = O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW;

int open_at(int folder, std::string const & name, int flags, ::mode_t mode = 0)
{
    int descriptor = -1;
    do
        descriptor = ::openat(folder, name.c_str(), flags, mode);
    while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

apFileIdentity identity_of(struct stat const & status)
{
    return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

} // namespace

apFolder apFolder::open(std::string const & path)
{
    apFileDescriptor folder(path, O_RDONLY | O_DIRECTORY);
    if (!folder.open() && errno == EACCES)
        folder = apFileDescriptor(path, O_PATH | O_DIRECTORY);
    return apFolder(std::move(folder));
}

apFolder apFolder::open_folder(std::string const & name) const
{
    int descriptor = open_at(m_folder.get(), name, O_RDONLY | folder_flags);
    if (descriptor < 0 && errno == EACCES)
        descriptor = open_at(m_folder.get(), name, O_PATH | folder_flags);
    return apFolder(apFileDescriptor(descriptor));
}

apFolder apFolder::make_folder(std::string const & name, ::mode_t mode) const
{
    if (::mkdirat(m_folder.get(), name.c_str(), mode) != 0)
        return {};
    auto folder = open_folder(name);
    if (!folder.is_open()) {
        int const error = errno;
        remove_folder(name);
        errno = error;
    } else if (!folder.names().empty()) {
        errno = EEXIST;
        return {};
    }
    return folder;
}

apFileDescriptor apFolder::open_file(std::string const & name, int flags, ::mode_t mode) const
{
    return apFileDescriptor(open_at(m_folder.get(), name, flags | O_CLOEXEC | O_NOFOLLOW, mode));
}

std::optional<apFileIdentity> apFolder::identity() const
{
    auto const found = status();
    return found ? std::optional(identity_of(*found)) : std::nullopt;
}

std::optional<struct stat> apFolder::status(std::string const & name) const
{
    struct stat found;
    if (::fstatat(m_folder.get(), name.c_str(), &found, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return found;
}

std::optional<struct stat> apFolder::status() const
{
    struct stat found;
    if (::fstat(m_folder.get(), &found) != 0)
        return std::nullopt;
    return found;
}

bool apFolder::has_under(std::string const & name, apFolder const & folder) const
{
    auto const entry = status(name);
    return entry && folder.identity() == identity_of(*entry);
}

std::vector<std::string> apFolder::names() const
{
    std::vector<std::string> names;
    // fdopendir takes its descriptor over, and reading moves the place that copies of one share.
    int const descriptor = open_at(m_folder.get(), ".", O_RDONLY | folder_flags);
    std::unique_ptr<DIR, int (*)(DIR *)> const entries(descriptor < 0 ? nullptr : ::fdopendir(descriptor),
                                                       ::closedir);
    while (auto const * const entry = entries ? ::readdir(entries.get()) : nullptr)
        if (std::string name = entry->d_name; name != "." && name != "..")
            names.push_back(std::move(name));
    return names;
}

bool apFolder::remove_file(std::string const & name) const
{
    return ::unlinkat(m_folder.get(), name.c_str(), 0) == 0;
}

bool apFolder::remove_folder(std::string const & name) const
{
    return ::unlinkat(m_folder.get(), name.c_str(), AT_REMOVEDIR) == 0;
}

void apFolder::remove_contents(std::string const & kept) const
{
    auto const own = status();
    for (auto const & name : names()) {
        auto const entry = status(name);
        if (name == kept || !entry || !own)
            continue;
        if (!S_ISDIR(entry->st_mode)) {
            remove_file(name);
        } else if (entry->st_uid == own->st_uid && entry->st_dev == own->st_dev) {
            // Whoever wrote here may have taken away the right to change it.
            auto folder = open_folder(name);
            if (folder.is_open())
                ::fchmod(folder.descriptor(), 0700);
            folder.remove_contents();
            remove_folder(name);
        }
    }
}

apFileResult apFolder::sync() const
{
    return m_folder.sync();
}
