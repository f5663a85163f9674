#include "sdk/sdkFiles.h"

#include "sdk/sdkInputFile.h"

#include <filesystem>
#include <system_error>

std::string sdk_system_text(int error_number)
{
    return std::generic_category().message(error_number);
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
