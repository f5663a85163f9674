#include "ap/apChangeable.h"

#include <filesystem>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

bool is_trusted(::uid_t owner)
{
    return owner == 0 || owner == ::geteuid();
}

/// Many systems give each user a group of the same name, and let it write all that the user makes.
bool is_group_of_user_alone(std::string const & path, ::gid_t id)
{
    // With an access list the rights of the group are the most that anybody named there has.
    if (::getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0)
        return false;
    auto const * const user = ::getpwuid(::geteuid());
    std::string const name = user ? user->pw_name : "";
    auto const * const group = ::getgrgid(id);
    return group && name == group->gr_name && !*group->gr_mem;
}

/// What lies in a folder with the sticky bit is safe there, but anybody can add to it.
bool others_may_change(std::string const & path, bool may_be_sticky)
{
    struct stat link;
    struct stat found;
    if (::lstat(path.c_str(), &link) != 0 || ::stat(path.c_str(), &found) != 0)
        return false;
    if (!is_trusted(link.st_uid) || !is_trusted(found.st_uid))
        return true;
    if (may_be_sticky && (found.st_mode & S_ISVTX))
        return false;
    return (found.st_mode & S_IWOTH) ||
           ((found.st_mode & S_IWGRP) && !is_group_of_user_alone(path, found.st_gid));
}

std::string above(fs::path const & path)
{
    for (auto folder = path.parent_path();; folder = folder.parent_path()) {
        if (others_may_change(folder, true))
            return folder;
        if (folder == folder.parent_path())
            return {};
    }
}

/// The file or folder itself and all that leads to it.
std::string at(fs::path const & path)
{
    std::error_code error;
    if (others_may_change(path, false))
        return path;
    if (auto const found = above(path); !found.empty())
        return found;
    auto const place = fs::canonical(path, error);
    return error || place == path ? std::string() : above(place);
}

} // namespace

std::string ap_changeable_by_others(std::string const & folder)
{
    std::error_code error;
    auto const path = fs::absolute(folder, error).lexically_normal();
    if (auto const found = at(path); !found.empty())
        return found;
    for (auto entry = fs::directory_iterator(path, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (auto const found = at(entry->path()); !found.empty())
            return found;
    return {};
}
