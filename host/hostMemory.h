#pragma once

#include <cstdint>

// Sets the limit of this process's address space; 0 for none.
void host_limit_memory(std::uint64_t bytes);

// True when the process has come so close to the limit that an allocation has most likely failed. Libraries
// catch such failures and then complain of the file instead.
bool host_memory_ran_out(std::uint64_t limit);
