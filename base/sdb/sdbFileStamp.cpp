#include "sdb/sdbFileStamp.h"

#include <sys/stat.h>

namespace {

std::int64_t nanoseconds(timespec const & time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

sdbFileStamp sdbFileStamp::of(std::string const & path)
{
    struct stat entry = {};
    if (::stat(path.c_str(), &entry) != 0)
        return {};
    return {true, S_ISDIR(entry.st_mode) ? 0 : static_cast<std::int64_t>(entry.st_size),
            nanoseconds(entry.st_mtim), nanoseconds(entry.st_ctim)};
}
