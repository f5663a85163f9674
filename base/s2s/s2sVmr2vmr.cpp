#include "s2s/s2sVmr2vmr.h"

#include <thread>

s2sVmr2vmr::s2sVmr2vmr() : m_hosts(std::max(1, static_cast<int>(std::thread::hardware_concurrency()))) {}
