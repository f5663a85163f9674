#include "sdk/sdkFiles.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

std::string sdk_system_text(int error_number)
{
    return std::generic_category().message(error_number);
}

std::string sdk_file_begin(std::string const & path, std::size_t bytes, sdkText & failure)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        failure = sdkText("host::%s is a folder, not a file", path);
        return {};
    }
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        failure = sdkText("host::%s cannot be opened: %s", path, sdk_system_text(errno));
        return {};
    }
    std::string text(bytes, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(bytes));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (text.empty()) {
        failure = sdkText("host::%s is empty", path);
    }
    return text;
}

std::string sdk_file_stem(std::string const & path)
{
    return std::filesystem::path(path).stem().string();
}

std::string sdk_file_name(std::string const & path)
{
    return std::filesystem::path(path).filename().string();
}

sdkResult sdk_check_written(std::string const & path, std::string const & shown, int error_number)
{
    if (error_number != 0) {
        return sdkResult::write_error(
            sdkText("host::%s could not be written: %s", shown, sdk_system_text(error_number)));
    }
    std::error_code failure;
    auto const size = std::filesystem::file_size(path, failure);
    if (failure) {
        return sdkResult::write_error(sdkText("host::%s could not be written: %s", shown, failure.message()));
    }
    if (size == 0) {
        return sdkResult::write_error(sdkText("host::%s was written without any content", shown));
    }
    return sdkResult::completed();
}
