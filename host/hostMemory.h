#pragma once

#include <cstdint>

// Allows this process so many bytes of memory; 0 for any number. Never more than the process was given from
// outside, by `ulimit` for instance. May be called again with more.
void host_limit_memory(std::uint64_t bytes);

// To be called in a process that was forked off this one: it may take half of what this one has not taken
// yet. `taken` is what host_memory_taken gave before the fork, which may not see its own account of it.
void host_limit_memory_of_fork(std::uint64_t taken);

// Bytes of data that this process has; 0 when the system does not tell.
std::uint64_t host_memory_taken();

// What the process may have, in bytes; 0 for no limit.
std::uint64_t host_memory_limit();

// True when the process has come so close to the limit that an allocation has most likely failed. Libraries
// catch such failures and then complain of the file instead.
bool host_memory_ran_out();
