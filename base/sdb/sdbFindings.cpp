#include "sdb/sdbFindings.h"

#include <utility>

void sdbFindings::add(sdbFinding finding)
{
    auto & kept = m_kept_of.at(static_cast<std::size_t>(finding.weight));
    if (kept == most_of_a_weight) {
        ++m_left_out;
        return;
    }
    ++kept;
    m_kept.push_back(std::move(finding));
}
