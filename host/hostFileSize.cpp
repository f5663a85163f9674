#include "host/hostFileSize.h"

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

void host_limit_file_size(std::uint64_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    if (bytes > 0 && ::getrlimit(RLIMIT_FSIZE, &limit) == 0) {
        limit.rlim_cur = std::min<rlim_t>(limit.rlim_cur, bytes);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
}
