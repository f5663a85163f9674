#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

/// The calls that can be made to fail, one family at a time.
enum class faultFamily { open, write, fsync, rename, mkdir, mmap, fork, pipe, truncate, allocation };

/// What all processes of one run count in, at the start of the file that VMR_FAULT_COUNT names. The script
/// that runs them reads it in this layout, with the byte order of the machine.
struct faultRecord {
    std::atomic<std::uint64_t> calls;             ///< of the family, in all processes and threads
    std::atomic<std::uint64_t> failed;            ///< how many of them were made to fail
    char where[4096 - 2 * sizeof(std::uint64_t)]; ///< the callers of the first that failed, a line each:
                                                  ///< object+offset
};
static_assert(sizeof(faultRecord) == 4096);

/// Counts a call of the family: true when this one has to fail. Sets errno then. It makes no system call, so
/// it works where a process has given up the right to make most of them. Any thread.
bool fault_strikes(faultFamily family);

/// Counts an allocation by the code at this address: true when it has to fail. Only code of our own is
/// counted, which is what does not lie in the folders of the system's libraries. After the first of those
/// that fail from then on there is as much memory as is given back.
bool fault_strikes_allocation(void const * caller, std::size_t bytes);

/// Tells that so many bytes have been given back.
void fault_gives_back(std::size_t bytes);

/// From here on calls are counted; before, the process is only being loaded.
void fault_begin();
