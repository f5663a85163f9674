#include "host/hostFindings.h"

#include <utility>

namespace {

// Of one kind and weight and file, as messages.
constexpr std::int64_t shown = 10;

sdkStream stream_of(sdkWeight weight)
{
    return weight == sdkWeight::note ? sdkStream::output : sdkStream::error;
}

} // namespace

void hostFindings::tell(std::vector<sdkFinding> const & findings)
{
    std::map<std::pair<std::string, sdkWeight>, std::int64_t> told;
    for (auto const & finding : findings) {
        if (++told[{finding.kind, finding.weight}] <= shown) {
            m_reporter.message(stream_of(finding.weight), finding.text);
        }
        record(finding);
    }
    for (auto const & [one, count] : told) {
        auto const & [kind, weight] = one;
        if (count > shown) {
            m_reporter.message(stream_of(weight),
                               sdkText("host::%d more of the kind \"%s\"", count - shown, kind));
        }
    }
}

void hostFindings::record(sdkFinding const & finding)
{
    ++m_counts[finding.weight];
    m_events.finding(finding);
}

std::int64_t hostFindings::count(sdkWeight weight) const
{
    auto const found = m_counts.find(weight);
    return found == m_counts.end() ? 0 : found->second;
}
