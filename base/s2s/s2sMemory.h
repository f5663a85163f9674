#pragma once

#include <cstdint>
#include <filesystem>

/// The memory that this program and what it starts can have, in bytes: that of the machine or, where its
/// control groups allow less, as in a container, what they allow. 0 where the system does not tell.
struct s2sMemory {
    std::uint64_t total = 0;
    std::uint64_t available = 0; ///< could be had at this moment
};

/// Read afresh with each call. `root` is where the system shows itself, another folder only for tests.
s2sMemory s2s_memory(std::filesystem::path const & root = "/");

/// What each of so many hosts may take of what is available, so that there is enough for the process besides
/// that reads its output back; never so little that none could begin.
std::uint64_t s2s_memory_share(s2sMemory const & memory, int hosts);

/// Whether one more host may be started while another is at work, and whether those that run ahead of their
/// turn must give way to the one whose turn it is, because the two could come to need more than there is. The
/// bounds are a quarter and an eighth of all.
bool s2s_memory_for_one_more(s2sMemory const & memory);
bool s2s_memory_is_short(s2sMemory const & memory);
