#include "ap/apHome.h"

#include <filesystem>

#include "ap/apPosixOperations.h"

namespace {

/// With a dot for a last part, so that a slash at the end makes no difference.
std::filesystem::path plain(std::string const & path)
{
    return (std::filesystem::path(path) / ".").lexically_normal();
}

} // namespace

bool ap_is_home(std::string const & path)
{
    auto const home = apPosixProcessEnvironmentOperations().environment("HOME").str();
    return !home.empty() && plain(path) == plain(home);
}
