#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

/// What a path really names: two paths with equal identities are one file, whatever links lie between.
struct apFileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    friend bool operator==(apFileIdentity const &, apFileIdentity const &) = default;
    friend auto operator<=>(apFileIdentity const & a, apFileIdentity const & b)
    {
        return std::pair(a.device, a.inode) <=> std::pair(b.device, b.inode);
    }
};

/// Follows links; none when nothing is there.
std::optional<apFileIdentity> ap_file_identity(std::string const & path);
/// False too when one of the two does not exist.
bool ap_same_file(std::string const & a, std::string const & b);
