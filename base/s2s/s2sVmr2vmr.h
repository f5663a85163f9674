#pragma once

#include <algorithm>
#include <cstdint>

/// What holds for all the translations of one driver.
class s2sVmr2vmr {
public:
    s2sVmr2vmr(); ///< with the physical memory of the machine as limit and one host for each processor

    /// Bytes that one translation may occupy; 0 means as much as it likes. A translation that needs more ends
    /// as s2sThreadFileTooBig.
    std::uint64_t memory_limit() const { return m_memory_limit; }
    void set_memory_limit(std::uint64_t bytes) { m_memory_limit = bytes; }

    /// How many translations of a batch may be at work at the same time; with 1 each begins when the one
    /// before it has ended.
    int hosts() const { return m_hosts; }
    void set_hosts(int number) { m_hosts = std::max(1, number); }

private:
    std::uint64_t m_memory_limit;
    int m_hosts;
};
