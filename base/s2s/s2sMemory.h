#pragma once

#include <cstdint>

/// The memory of the machine in bytes; 0 when the system does not tell.
std::uint64_t s2s_physical_memory();
/// What of it could be had at this moment; 0 when the system does not tell.
std::uint64_t s2s_available_memory();

/// Whether one more host may be started while another is at work, and whether those that run ahead of their
/// turn must give way to the one whose turn it is, because the two could come to need more than there is. The
/// bounds are a quarter and an eighth of the machine's memory.
bool s2s_memory_for_one_more(std::uint64_t available, std::uint64_t physical);
bool s2s_memory_is_short(std::uint64_t available, std::uint64_t physical);
