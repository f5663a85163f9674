#pragma once

#include <cstdint>
#include <string>

/// What a file looked like when it was read, by its directory entry alone: enough to know later that reading
/// it again would give the same.
class vmrFileState {
public:
    vmrFileState() = default; ///< of a file that is not there
    /// To be taken before the file is read.
    static vmrFileState of(std::string const & path);

    /// False also for a file that had been written so shortly before that another change in the same moment
    /// would have left no trace.
    bool is_still(std::string const & path) const;

private:
    bool m_exists = false;
    std::uint64_t m_device = 0;
    std::uint64_t m_inode = 0;
    std::int64_t m_size = 0;
    std::int64_t m_modified = 0; ///< nanoseconds
    std::int64_t m_changed = 0;
    std::int64_t m_taken = 0;
};
