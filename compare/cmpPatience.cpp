#include "compare/cmpPatience.h"

#include <filesystem>

namespace {

using Seconds = std::chrono::duration<double>;

constexpr Seconds for_any_file(600);
constexpr Seconds for_a_megabyte(60);

double megabytes(std::string const & file)
{
    std::error_code error;
    auto const size = std::filesystem::file_size(file, error);
    return error ? 0 : static_cast<double>(size) / (1024 * 1024);
}

} // namespace

std::optional<std::chrono::milliseconds> cmp_patience(cmpOptions const & options)
{
    if (options.timeout == 0)
        return std::nullopt;
    auto const patience =
        options.timeout
            ? Seconds(*options.timeout)
            : for_any_file + for_a_megabyte * (megabytes(options.a.path) + megabytes(options.b.path));
    return std::chrono::ceil<std::chrono::milliseconds>(patience);
}
