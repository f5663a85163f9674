#include "ap/apFileIdentity.h"

#include <sys/stat.h>

std::optional<apFileIdentity> ap_file_identity(std::string const & path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return apFileIdentity{static_cast<std::uint64_t>(status.st_dev),
                          static_cast<std::uint64_t>(status.st_ino)};
}

bool ap_same_file(std::string const & a, std::string const & b)
{
    auto const first = ap_file_identity(a);
    return first && first == ap_file_identity(b);
}
