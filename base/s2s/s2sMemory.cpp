#include "s2s/s2sMemory.h"

#include <fstream>
#include <string>

#include <unistd.h>

std::uint64_t s2s_physical_memory()
{
    auto const pages = sysconf(_SC_PHYS_PAGES);
    auto const page = sysconf(_SC_PAGESIZE);
    return pages > 0 && page > 0 ? static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(page) : 0;
}

std::uint64_t s2s_available_memory()
{
    std::ifstream information("/proc/meminfo");
    std::string word;
    while (information >> word)
        if (std::uint64_t kilobytes = 0; word == "MemAvailable:" && information >> kilobytes)
            return kilobytes * 1024;
    return 0;
}

bool s2s_memory_for_one_more(std::uint64_t available, std::uint64_t physical)
{
    return available >= physical / 4;
}

bool s2s_memory_is_short(std::uint64_t available, std::uint64_t physical)
{
    return available < physical / 8;
}
