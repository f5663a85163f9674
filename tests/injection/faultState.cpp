// Makes one call fail, for tests of what the programs do then. Preloaded, and ruled by the environment:
//
//     VMR_FAULT_PROGRAM   the name of the program whose calls are counted, without its folder
//     VMR_FAULT_FAMILY    open, write, fsync, rename, mkdir, mmap, fork, pipe, truncate or new
//     VMR_FAULT_NUMBER    which call fails, from 1; 0 for none
//     VMR_FAULT_ERROR     the error number that it fails with
//     VMR_FAULT_FOREVER   1: all later calls of the family fail, too
//     VMR_FAULT_COUNT     a file of the size of a faultRecord, in which the calls are counted
//
// Calls that the C library makes within itself do not come by here and are not counted; nor are writes to
// standard output and standard error, by which the programs say what went wrong.

#include "faultState.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <link.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::array names = {"open", "write", "fsync", "rename",   "mkdir",
                              "mmap", "fork",  "pipe",  "truncate", "new"};

struct Plan {
    faultFamily family{};
    std::uint64_t number = 0;
    int error = 0;
    bool forever = false;
    faultRecord * record = nullptr;
};

// Written before main begins, by one thread.
Plan plan;
std::atomic<bool> begun = false;
// Since memory ran out for good.
std::atomic<std::size_t> given_back = 0;
// To say where a call came from takes calls of its own.
thread_local bool at_work = false;

char const * variable(char const * name)
{
    char const * const value = std::getenv(name);
    return value ? value : "";
}

bool is_this_program(char const * name)
{
    char path[4096] = "";
    auto const length = ::readlink("/proc/self/exe", path, sizeof path - 1);
    char const * const slash = length > 0 ? std::strrchr(path, '/') : nullptr;
    return slash && std::strcmp(slash + 1, name) == 0;
}

faultRecord * map_record(char const * file)
{
    // By their numbers, because the functions of these names are the ones that count.
    auto const descriptor = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, file, O_RDWR | O_CLOEXEC));
    if (descriptor < 0)
        return nullptr;
    auto const address =
        ::syscall(SYS_mmap, nullptr, sizeof(faultRecord), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    ::close(descriptor);
    return address == -1 ? nullptr : reinterpret_cast<faultRecord *>(address);
}

void note_callers(faultRecord & record)
{
    void * frames[40];
    int const count = ::backtrace(frames, 40);
    std::size_t used = 0;
    for (int i = 0; i < count; ++i) {
        dl_find_object found{};
        if (::_dl_find_object(frames[i], &found) != 0)
            continue;
        auto const offset =
            static_cast<char *>(frames[i]) - reinterpret_cast<char *>(found.dlfo_link_map->l_addr);
        int const length = std::snprintf(record.where + used, sizeof record.where - used, "%s+0x%tx\n",
                                         found.dlfo_link_map->l_name, offset);
        used += static_cast<std::size_t>(length);
        if (used >= sizeof record.where)
            return;
    }
}

bool strikes(Plan const & now)
{
    auto const call = now.record->calls.fetch_add(1) + 1;
    if (now.number == 0 || call < now.number || (call > now.number && !now.forever))
        return false;
    if (now.record->failed.fetch_add(1) == 0) {
        at_work = true;
        note_callers(*now.record);
        at_work = false;
    }
    errno = now.error;
    return true;
}

bool counts(faultFamily family)
{
    return begun.load(std::memory_order_relaxed) && plan.family == family && !at_work;
}

// What has no name is the program itself.
bool is_ours(void const * code)
{
    dl_find_object found{};
    if (::_dl_find_object(const_cast<void *>(code), &found) != 0)
        return false;
    char const * const name = found.dlfo_link_map->l_name;
    return std::strncmp(name, "/lib", 4) != 0 && std::strncmp(name, "/usr/lib", 8) != 0 &&
           std::strncmp(name, "linux-", 6) != 0;
}

} // namespace

bool fault_strikes(faultFamily family)
{
    return counts(family) && strikes(plan);
}

bool fault_strikes_allocation(void const * caller, std::size_t bytes)
{
    if (!counts(faultFamily::allocation) || !is_ours(caller) || !strikes(plan))
        return false;
    auto left = given_back.load();
    while (left >= bytes)
        if (given_back.compare_exchange_weak(left, left - bytes))
            return false;
    return true;
}

void fault_gives_back(std::size_t bytes)
{
    if (begun.load(std::memory_order_relaxed) && plan.forever && plan.record->failed.load() > 0)
        given_back += bytes;
}

void fault_begin()
{
    if (!is_this_program(variable("VMR_FAULT_PROGRAM")))
        return;
    std::size_t family = 0;
    while (family < names.size() && std::strcmp(names[family], variable("VMR_FAULT_FAMILY")) != 0)
        ++family;
    auto * const record = map_record(variable("VMR_FAULT_COUNT"));
    if (family == names.size() || !record) {
        std::fputs("fault injection: no such family, or no file to count in\n", stderr);
        ::_exit(125);
    }
    plan = {static_cast<faultFamily>(family), std::strtoull(variable("VMR_FAULT_NUMBER"), nullptr, 10),
            std::atoi(variable("VMR_FAULT_ERROR")), std::strcmp(variable("VMR_FAULT_FOREVER"), "1") == 0,
            record};
    // The first time it loads what it needs.
    void * frame = nullptr;
    ::backtrace(&frame, 1);
    begun = true;
}
