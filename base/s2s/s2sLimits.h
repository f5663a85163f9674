#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

class s2sTranslationElements;
class sduStartupInfo;

/// How much one translation may take, as the startup settings say.
struct s2sLimits {
    /// For so long it may say nothing new, and for a quarter more with each megabyte of its inputs; 0 means
    /// for ever.
    std::chrono::seconds patience{120};
    /// Bytes that it may occupy, 64 MB at least; 0 means as many as are free when it begins.
    std::uint64_t memory = 0;
    /// Bytes that one file of its output may have; 0 means as many as the disk has room for, but for a
    /// reserve.
    std::uint64_t output_size = 0;
};

/// A field that is absent, or no whole number from 0 on, has its default.
s2sLimits s2s_limits(sduStartupInfo const & settings);

/// Bytes that one file may have on a disk with so many free ones; 0 for no limit, where the disk is so full
/// that it sets one itself.
std::uint64_t s2s_file_size_for(std::uint64_t free);

/// Bytes that a host may occupy which shares the memory that is free with others, `hosts` with itself; 0 for
/// no limit.
std::uint64_t s2s_allowed_memory(s2sLimits const & limits, int hosts);

/// What one host is allowed, from the limits and the state of the machine at this moment.
struct s2sAllowance {
    std::uint64_t memory = 0;                          ///< bytes; 0 for no limit
    std::uint64_t file_size = 0;                       ///< bytes; 0 for no limit
    std::optional<std::chrono::milliseconds> patience; ///< without anything new; none for no limit
};

/// For a host that writes into `folder`; memory as above.
s2sAllowance s2s_allowance(s2sLimits const & limits, s2sTranslationElements const & elements,
                           std::filesystem::path const & folder, int hosts);
