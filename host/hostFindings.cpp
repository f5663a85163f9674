#include "host/hostFindings.h"

namespace {

// Of one kind and file, as messages.
constexpr std::int64_t shown = 10;

sdkStream stream_of(sdkWeight weight)
{
    return weight == sdkWeight::note ? sdkStream::output : sdkStream::error;
}

} // namespace

void hostFindings::tell(std::vector<sdkFinding> const & findings)
{
    std::map<std::string, std::int64_t> told;
    std::map<std::string, sdkWeight> weights;
    for (auto const & finding : findings) {
        ++m_counts[finding.weight];
        weights[finding.kind] = finding.weight;
        if (++told[finding.kind] <= shown) {
            m_reporter.message(stream_of(finding.weight), finding.text);
        }
        m_events.finding(finding);
    }
    for (auto const & [kind, count] : told) {
        if (count > shown) {
            m_reporter.message(stream_of(weights[kind]),
                               sdkText("host::%d more of the kind \"%s\"", count - shown, kind));
        }
    }
}

std::int64_t hostFindings::count(sdkWeight weight) const
{
    auto const found = m_counts.find(weight);
    return found == m_counts.end() ? 0 : found->second;
}
