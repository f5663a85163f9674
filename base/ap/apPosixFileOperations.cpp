#include "ap/apPosixOperations.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "ap/apFileDescriptor.h"
#include "ap/apFileIdentity.h"
#include "ap/apHome.h"
#include "ap/apStagedFile.h"

namespace {

apFileResult last_error()
{
    return apFileResult(errno);
}

apFileResult status_of(apPathName const & path, struct stat & status)
{
    return ::stat(path.utf8().c_str(), &status) == 0 ? apFileResult() : last_error();
}

bool mode_is(apPathName const & path, mode_t kind)
{
    struct stat status;
    return status_of(path, status) && (status.st_mode & S_IFMT) == kind;
}

/// Opens a regular file for reading. A pipe would block and a directory cannot be read, so others are
/// refused.
apFileResult open_regular(apPathName const & path, apFileDescriptor & file, struct stat & status)
{
    file = apFileDescriptor(path.utf8(), O_RDONLY | O_NONBLOCK);
    if (!file.open() || ::fstat(file.get(), &status) != 0)
        return last_error();
    return S_ISREG(status.st_mode) ? apFileResult() : apFileResult(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
}

/// Where the path leads, also when its last link points to a file that is not there yet.
std::string resolved(std::string const & path)
{
    constexpr int most_links = 40;
    std::filesystem::path at(path);
    std::error_code error;
    for (int i = 0; i < most_links && std::filesystem::is_symlink(at, error); ++i) {
        auto const target = std::filesystem::read_symlink(at, error);
        if (error)
            break;
        at = at.parent_path() / target;
    }
    return at.native();
}

} // namespace

bool apPosixFileOperations::exists(apPathName const & path) const
{
    struct stat status;
    return static_cast<bool>(status_of(path, status));
}

bool apPosixFileOperations::is_file(apPathName const & path) const
{
    return mode_is(path, S_IFREG);
}

bool apPosixFileOperations::is_directory(apPathName const & path) const
{
    return mode_is(path, S_IFDIR);
}

bool apPosixFileOperations::is_writable_directory(apPathName const & path) const
{
    return is_directory(path) && ::access(path.utf8().c_str(), W_OK | X_OK) == 0;
}

apFileResult apPosixFileOperations::size(apPathName const & path, std::uint64_t & bytes) const
{
    struct stat status;
    auto const result = status_of(path, status);
    if (result)
        bytes = static_cast<std::uint64_t>(status.st_size);
    return result;
}

apFileResult apPosixFileOperations::list_directory(apPathName const & directory,
                                                   std::vector<apFileName> & names) const
{
    names.clear();
    std::error_code error;
    std::filesystem::directory_iterator at(directory.utf8(), error);
    for (; !error && at != std::filesystem::directory_iterator(); at.increment(error))
        names.push_back(apFileName::from_utf8(at->path().filename().native()));
    std::sort(names.begin(), names.end());
    return apFileResult(error);
}

apFileResult apPosixFileOperations::list_by_extension(apPathName const & directory,
                                                      apString const & extension,
                                                      apIStringCompare const & compare,
                                                      std::vector<apPathName> & paths) const
{
    paths.clear();
    std::vector<apFileName> names;
    auto const result = list_directory(directory, names);
    for (auto const & name : names) {
        auto const path = directory.adjoin(name);
        if (!name.extension().empty() && compare.compare(name.extension(), extension) == 0 && is_file(path))
            paths.push_back(path);
    }
    return result;
}

apFileResult apPosixFileOperations::read_file(apPathName const & path, std::string & content,
                                              std::size_t limit) const
{
    content.clear();
    apFileDescriptor file;
    struct stat status;
    auto const opened = open_regular(path, file, status);
    if (!opened)
        return opened;
    char buffer[65536];
    long count = 0;
    while ((count = file.read(buffer, sizeof buffer)) > 0) {
        content.append(buffer, static_cast<std::size_t>(count));
        if (content.size() > limit) {
            content.clear();
            return apFileResult(EFBIG);
        }
    }
    if (count == 0)
        return {};
    auto const failure = last_error();
    content.clear();
    return failure;
}

apFileResult apPosixFileOperations::replace_file(apPathName const & path, std::string_view content) const
{
    if (is_directory(path))
        return apFileResult(EISDIR);
    apStagedFile staged(resolved(path.utf8()));
    staged.use_permissions_of_target();
    staged.write(content);
    return staged.commit();
}

bool apPosixFileOperations::can_replace_file(apPathName const & path) const
{
    auto const target = apPathName::from_utf8(resolved(path.utf8()));
    auto const directory = target.directory();
    if (!is_writable_directory(directory.empty() ? apPathName(L".") : directory))
        return false;
    return is_file(target) ? ::access(target.utf8().c_str(), W_OK) == 0 : !exists(target);
}

apFileResult apPosixFileOperations::copy(apPathName const & from, apPathName const & to) const
{
    apFileDescriptor source;
    struct stat status;
    auto const opened = open_regular(from, source, status);
    if (!opened)
        return opened;
    if (ap_same_file(from.utf8(), to.utf8()))
        return apFileResult(EEXIST);
    if (is_directory(to))
        return apFileResult(EISDIR);
    apStagedFile staged(resolved(to.utf8()));
    char buffer[65536];
    long count = 0;
    while (staged.result() && (count = source.read(buffer, sizeof buffer)) > 0)
        staged.write({buffer, static_cast<std::size_t>(count)});
    return count < 0 ? last_error() : staged.commit();
}

apFileResult apPosixFileOperations::rename(apPathName const & from, apPathName const & to) const
{
    return ::rename(from.utf8().c_str(), to.utf8().c_str()) == 0 ? apFileResult() : last_error();
}

apFileResult apPosixFileOperations::remove(apPathName const & path) const
{
    return ::unlink(path.utf8().c_str()) == 0 ? apFileResult() : last_error();
}

apFileResult apPosixFileOperations::make_directory(apPathName const & path) const
{
    if (::mkdir(path.utf8().c_str(), 0777) != 0)
        return last_error();
    // A mask that takes rights from the owner would leave a directory that is of no use to the one who asked
    // for it.
    struct stat status;
    auto const result = status_of(path, status);
    if (result && (status.st_mode & S_IRWXU) != S_IRWXU &&
        ::chmod(path.utf8().c_str(), (status.st_mode & 07777) | S_IRWXU) != 0)
        return last_error();
    return result;
}

apFileResult apPosixFileOperations::make_directories(apPathName const & path) const
{
    if (is_directory(path))
        return {};
    if (ap_is_home(path.utf8()))
        return apFileResult(ENOENT);
    auto const parent = path.directory();
    if (!parent.empty() && parent != path) {
        auto const result = make_directories(parent);
        if (!result)
            return result;
    }
    auto const result = make_directory(path);
    if (result.error() != std::errc::file_exists)
        return result;
    // Another process may have been faster, and a path may end in a separator.
    return is_directory(path) ? apFileResult() : apFileResult(ENOTDIR);
}

apPathName apPosixFileOperations::temp_directory() const
{
    std::error_code error;
    auto const directory = std::filesystem::temp_directory_path(error);
    return error ? apPathName() : apPathName::from_utf8(directory.native());
}
