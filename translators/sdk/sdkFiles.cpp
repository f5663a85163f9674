#include "sdk/sdkFiles.h"

#include "sdk/sdkInputFile.h"

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <sys/resource.h>
#include <system_error>

std::string sdk_system_text(int error_number)
{
    return std::generic_category().message(error_number);
}

sdkResult sdk_not_written(std::string const & shown, int error_number)
{
    constexpr double megabyte = 1024 * 1024;
    rlimit allowed{RLIM_INFINITY, RLIM_INFINITY};
    ::getrlimit(RLIMIT_FSIZE, &allowed);
    if (error_number == ENOSPC || error_number == EDQUOT) {
        return sdkResult::write_error(
            sdkText("host::%s could not be written: %s; make room on the disk or choose another folder",
                    shown, sdk_system_text(error_number)));
    }
    if (error_number == EFBIG && allowed.rlim_cur != RLIM_INFINITY) {
        auto const megabytes = std::ceil(static_cast<double>(allowed.rlim_cur) / megabyte * 100) / 100;
        return sdkResult::write_error(sdkText(
            "host::%s could not be written, because it is larger than the %g MB that are allowed by the "
            "free space of the disk, the setting %s or a limit of the shell; make room, raise the "
            "limit or write less",
            shown, megabytes, "translation_output_size"));
    }
    return sdkResult::write_error(
        sdkText("host::%s could not be written: %s", shown, sdk_system_text(error_number)));
}

std::string sdk_file_stem(std::string const & path)
{
    return std::filesystem::path(path).stem().string();
}

std::string sdk_file_name(std::string const & path)
{
    return std::filesystem::path(path).filename().string();
}

sdkResult sdk_check_written(std::string const & path, std::string const & shown)
{
    std::error_code failure;
    auto const size = std::filesystem::file_size(path, failure);
    if (failure) {
        return sdkResult::write_error(sdkText("host::%s could not be written: %s", shown, failure.message()));
    }
    if (size == 0) {
        return sdkResult::write_error(
            sdkText("host::%s could not be written: there is no content for it", shown));
    }
    return sdkResult::completed();
}

bool sdk_file_passes(std::string const & path, std::function<bool(std::string_view)> const & is_whole)
{
    sdkInputFile file;
    sdkText ignored;
    return file.open(path, ignored) && is_whole(file.text());
}
