#include "vmr/vmrFileState.h"

#include <ctime>
#include <sys/stat.h>

namespace {

/// Times of files advance in steps of some milliseconds.
constexpr std::int64_t moment = 50'000'000;

std::int64_t nanoseconds(timespec const & time)
{
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

vmrFileState vmrFileState::of(std::string const & path)
{
    vmrFileState state;
    struct stat entry = {};
    if (::stat(path.c_str(), &entry) != 0)
        return state;
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    state.m_exists = true;
    state.m_device = entry.st_dev;
    state.m_inode = entry.st_ino;
    state.m_size = entry.st_size;
    state.m_modified = nanoseconds(entry.st_mtim);
    state.m_changed = nanoseconds(entry.st_ctim);
    state.m_taken = nanoseconds(now);
    return state;
}

bool vmrFileState::is_still(std::string const & path) const
{
    vmrFileState const now = of(path);
    if (!m_exists || !now.m_exists)
        return m_exists == now.m_exists;
    return m_device == now.m_device && m_inode == now.m_inode && m_size == now.m_size &&
           m_modified == now.m_modified && m_changed == now.m_changed && m_changed + moment < m_taken;
}
