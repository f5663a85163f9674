#pragma once

#include <cstdint>

/// What holds for all the translations of one driver.
class s2sVmr2vmr {
public:
    s2sVmr2vmr(); ///< with the physical memory of the machine as limit

    /// Bytes that one translation may occupy; 0 means as much as it likes. A translation that needs more ends
    /// as s2sThreadFileTooBig.
    std::uint64_t memory_limit() const { return m_memory_limit; }
    void set_memory_limit(std::uint64_t bytes) { m_memory_limit = bytes; }

private:
    std::uint64_t m_memory_limit;
};
