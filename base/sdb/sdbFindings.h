#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "sdb/sdbFinding.h"

/// The findings about one translation, in the order in which they came. A file with a hundred thousand faults
/// must not fill the memory: of each weight the first ones are kept and the others counted, so that no number
/// of notes displaces a loss.
class sdbFindings {
public:
    static constexpr std::size_t most_of_a_weight = 10000;

    void add(sdbFinding finding);
    std::vector<sdbFinding> const & kept() const { return m_kept; }
    std::size_t left_out() const { return m_left_out; } ///< those that were only counted
    bool empty() const { return m_kept.empty(); }

private:
    std::vector<sdbFinding> m_kept;
    std::array<std::size_t, 3> m_kept_of{};
    std::size_t m_left_out = 0;
};
