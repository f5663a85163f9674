#include "host/hostMemory.h"

#include <fstream>
#include <string>
#include <sys/resource.h>

namespace {

// The largest address space that the process has had so far; 0 when the system does not tell.
std::uint64_t largest_address_space()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (std::uint64_t kilobytes = 0; word == "VmPeak:" && status >> kilobytes) {
            return kilobytes * 1024;
        }
    }
    return 0;
}

} // namespace

void host_limit_memory(std::uint64_t bytes)
{
    if (bytes > 0) {
        rlimit const limit{bytes, bytes};
        ::setrlimit(RLIMIT_AS, &limit);
    }
}

bool host_memory_ran_out(std::uint64_t limit)
{
    return limit > 0 && largest_address_space() > limit - limit / 10;
}
