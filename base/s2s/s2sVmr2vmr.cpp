#include "s2s/s2sVmr2vmr.h"

#include <thread>

#include "s2s/s2sMemory.h"

s2sVmr2vmr::s2sVmr2vmr()
    : m_memory_limit(s2s_physical_memory()),
      m_hosts(std::max(1, static_cast<int>(std::thread::hardware_concurrency())))
{
}
