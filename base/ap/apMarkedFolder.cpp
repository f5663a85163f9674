#include "ap/apMarkedFolder.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool owner_is(apFileDescriptor const & file, ::uid_t owner)
{
    struct stat found;
    return ::fstat(file.get(), &found) == 0 && S_ISREG(found.st_mode) && found.st_nlink == 1 &&
           found.st_uid == owner;
}

} // namespace

apMarkedFolder apMarkedFolder::make(apFolder parent, std::string const & name)
{
    apMarkedFolder made;
    made.m_parent = std::move(parent);
    made.m_name = name;
    made.m_folder = made.m_parent.make_folder(name, 0700);
    if (!made.is_open())
        return {};
    if (!made.write_mark()) {
        int const error = errno;
        if (made.m_mark.open())
            made.m_folder.remove_file(mark_name);
        if (made.m_parent.has_under(name, made.m_folder))
            made.m_parent.remove_folder(name);
        errno = error;
        return {};
    }
    // Without locks the number of the process in the name has to do.
    made.lock();
    return made;
}

apMarkedFolder apMarkedFolder::open(apFolder parent, std::string const & name)
{
    apMarkedFolder found;
    found.m_parent = std::move(parent);
    found.m_name = name;
    found.m_folder = found.m_parent.open_folder(name);
    if (!found.is_open() || !found.is_own() || !found.read_mark())
        return {};
    return found;
}

apMarkedFolder apMarkedFolder::open(std::string const & path)
{
    auto const slash = path.rfind('/');
    if (slash == std::string::npos)
        return open(apFolder::open("."), path);
    return open(apFolder::open(slash == 0 ? "/" : path.substr(0, slash)), path.substr(slash + 1));
}

// Some file systems give whatever this process makes to one and the same user, whoever runs it.
bool apMarkedFolder::is_own() const
{
    auto const owner = m_folder.status();
    if (!owner || owner->st_uid == ::geteuid())
        return owner.has_value();
    std::string const name = std::string(mark_name) + "-" + std::to_string(::getpid());
    auto const probe = m_folder.open_file(name, O_WRONLY | O_CREAT | O_EXCL, 0600);
    bool const own = probe.open() && owner_is(probe, owner->st_uid);
    if (probe.open())
        m_folder.remove_file(name);
    return own;
}

// The number makes it the mark of this folder and not of one from which it was copied or moved.
std::string apMarkedFolder::mark_text() const
{
    auto const identity = m_folder.identity();
    return identity ? "unfinished files of a translation\n" + m_name + '\n' +
                          std::to_string(identity->inode) + '\n'
                    : std::string();
}

bool apMarkedFolder::write_mark()
{
    m_mark = m_folder.open_file(mark_name, O_RDWR | O_CREAT | O_EXCL, 0600);
    auto const owner = m_folder.status();
    if (!m_mark.open() || !owner)
        return false;
    // Somebody else's folder has taken the place of the one that was made.
    if (!owner_is(m_mark, owner->st_uid)) {
        errno = EPERM;
        return false;
    }
    auto const written = m_mark.write(mark_text());
    errno = written.error().value();
    return bool(written);
}

bool apMarkedFolder::read_mark()
{
    m_mark = m_folder.open_file(mark_name, O_RDWR | O_NONBLOCK);
    auto const owner = m_folder.status();
    if (!m_mark.open() || !owner || !owner_is(m_mark, owner->st_uid))
        return false;
    auto const expected = mark_text();
    std::string text(expected.size() + 1, '\0');
    auto const length = m_mark.read(text.data(), text.size());
    text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return !expected.empty() && text == expected;
}

bool apMarkedFolder::lock() const
{
    return ::flock(m_mark.get(), LOCK_EX | LOCK_NB) == 0;
}

bool apMarkedFolder::set_kept(bool kept) const
{
    int const folder = m_folder.descriptor();
    return ::renameat(folder, kept ? mark_name : kept_mark_name, folder, kept ? kept_mark_name : mark_name) ==
           0;
}

void apMarkedFolder::remove() const
{
    if (m_folder.status(kept_mark_name))
        return;
    // The thread at work may make another file while its folder is being emptied; it cannot once the folder
    // is gone.
    constexpr int attempts = 1000;
    for (int i = 0; i < attempts; ++i) {
        m_folder.remove_contents(mark_name);
        auto const left = m_folder.names();
        if (left.size() > 1 || (left.size() == 1 && left.front() != mark_name))
            continue;
        m_folder.remove_file(mark_name);
        if (!m_parent.has_under(m_name, m_folder) || m_parent.remove_folder(m_name) ||
            (errno != ENOTEMPTY && errno != EEXIST))
            break;
    }
}
