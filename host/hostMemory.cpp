#include "host/hostMemory.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <thread>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The shadow of all addresses would count as data.
constexpr bool data_can_be_limited = false;
#else
constexpr bool data_can_be_limited = true;
#endif

// What a thread takes of the address space without using it: its stack and the pool that it allocates from.
constexpr rlim_t reserved_by_thread = 72 * 1024 * 1024;

rlimit limit_of(__rlimit_resource resource)
{
    rlimit limit{RLIM_INFINITY, RLIM_INFINITY};
    ::getrlimit(resource, &limit);
    return limit;
}

// Only the soft limit, so that it can be put higher again.
void set_limit(__rlimit_resource resource, rlimit const & from_outside, rlim_t bytes)
{
    rlimit const limit{std::min(from_outside.rlim_cur, bytes), from_outside.rlim_max};
    ::setrlimit(resource, &limit);
}

// A field of /proc/self/status, in bytes; 0 when the system does not tell.
rlim_t status_field(char const * name)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (rlim_t kilobytes = 0; word == name && status >> kilobytes) {
            return kilobytes * 1024;
        }
    }
    return 0;
}

} // namespace

// Two limits: of data, which is what takes memory away from others, and of the address space, which also
// counts what is only reserved and files that are looked at in place. The latter is wide; it is there for
// what the former does not count, such as memory that processes share.
void host_limit_memory(std::uint64_t bytes)
{
    static rlimit const data_from_outside = limit_of(RLIMIT_DATA);
    static rlimit const space_from_outside = limit_of(RLIMIT_AS);
    static rlim_t const space_at_first = status_field("VmSize:");
    if (bytes == 0) {
        return;
    }
    if (data_can_be_limited) {
        set_limit(RLIMIT_DATA, data_from_outside, bytes);
    }
    set_limit(RLIMIT_AS, space_from_outside,
              2 * bytes + space_at_first + std::thread::hardware_concurrency() * reserved_by_thread);
}

std::uint64_t host_memory_taken()
{
    return status_field("VmData:");
}

void host_limit_memory_of_fork(std::uint64_t taken)
{
    auto const allowed = host_memory_limit();
    if (taken < allowed) {
        host_limit_memory(taken + (allowed - taken) / 2);
    }
}

std::uint64_t host_memory_limit()
{
    auto const least = std::min(limit_of(RLIMIT_DATA).rlim_cur, limit_of(RLIMIT_AS).rlim_cur);
    return least == RLIM_INFINITY ? 0 : least;
}

bool host_memory_ran_out()
{
    auto const data = limit_of(RLIMIT_DATA).rlim_cur;
    auto const space = limit_of(RLIMIT_AS).rlim_cur;
    auto const most_space = status_field("VmPeak:");
    // The system keeps no account of the most data that there was. A process that had such a lot of address
    // space and used half of it as memory had much data.
    auto const much_data = most_space > data - data / 10 && status_field("VmHWM:") > data / 2;
    return most_space > space - space / 10 || much_data;
}
