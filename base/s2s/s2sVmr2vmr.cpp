#include "s2s/s2sVmr2vmr.h"

#include <unistd.h>

namespace {

std::uint64_t physical_memory()
{
    auto const pages = sysconf(_SC_PHYS_PAGES);
    auto const page = sysconf(_SC_PAGESIZE);
    return pages > 0 && page > 0 ? static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(page) : 0;
}

} // namespace

s2sVmr2vmr::s2sVmr2vmr() : m_memory_limit(physical_memory()) {}
