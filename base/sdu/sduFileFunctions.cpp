#include "sdu/sduFileFunctions.h"

#include <random>
#include <sys/stat.h>

#include "ap/apPosixOperations.h"
#include "sdu/sduFileRegistry.h"

namespace {

sduFileError error_of(std::error_code const & error)
{
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        return sduFileNotFound;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return sduFileAccessDenied;
    if (error == std::errc::is_a_directory)
        return sduFileDirectoryExists;
    return sduFileIOError;
}

sduFileError error_of(apFileResult const & result)
{
    return result ? sduFileDone : error_of(result.error());
}

apPathName path_of(utString const & path)
{
    return apPathName::from_utf8(path.view());
}

sduFileError what_exists(utString const & path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return error_of(std::error_code(errno, std::generic_category()));
    return S_ISDIR(status.st_mode) ? sduFileDirectoryExists : sduFileExists;
}

/// With the registry locked.
bool is_protected(utString const & path)
{
    auto const file = ap_file_identity(path.str());
    return file && sduFileRegistry::instance().contains(*file);
}

} // namespace

sduFileError sdu_check_file_exists(utString const & path)
{
    return what_exists(path);
}

sduFileError sdu_check_directory_exists(utString const & path)
{
    return what_exists(path);
}

sduFileError sdu_make_directory(utString const & path)
{
    auto const result = apPosixFileOperations().make_directory(path_of(path));
    return result.error() == std::errc::file_exists ? what_exists(path) : error_of(result);
}

sduFileError sdu_remove_file(utString const & path)
{
    std::scoped_lock const lock(sduFileRegistry::instance().mutex());
    if (is_protected(path))
        return sduFileProtected;
    return error_of(apPosixFileOperations().remove(path_of(path)));
}

sduFileError sdu_copy_file(utString const & from, utString const & to)
{
    std::scoped_lock const lock(sduFileRegistry::instance().mutex());
    if (is_protected(to))
        return sduFileProtected;
    auto const result = apPosixFileOperations().copy(path_of(from), path_of(to));
    return result.error() == std::errc::file_exists ? sduFileExists : error_of(result);
}

utString sdu_make_temp_file_name()
{
    apPosixFileOperations const files;
    std::random_device random;
    apPathName path;
    do {
        auto const name = "vmr-" + std::to_string(random()) + std::to_string(random());
        path = files.temp_directory().adjoin(apFileName::from_utf8(name));
    } while (files.exists(path));
    return utString(path.utf8());
}
