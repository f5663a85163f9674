#include "host/hostVerdict.h"

#include <algorithm>

namespace {

// Modules that keep no account only count.
std::int64_t losses(hostFindings const & findings, std::int64_t failed)
{
    return std::max(findings.count(sdkWeight::loss), failed);
}

} // namespace

hostVerdict host_verdict(hostTestimony const & testimony, hostFindings const & findings, std::int64_t failed)
{
    if (!testimony.read_back) {
        return hostVerdict::not_verified;
    }
    if (losses(findings, failed) > 0) {
        return hostVerdict::losses;
    }
    return findings.count(sdkWeight::difference) > 0 ? hostVerdict::differs : hostVerdict::verified;
}

hostVerdict host_verdict_without_output(sdkStatus status, hostFindings const & findings, std::int64_t failed)
{
    bool const known = failed > 0 && findings.count(sdkWeight::loss) > 0;
    bool const of_the_source = status == sdkStatus::completed || status == sdkStatus::read_error;
    return known && of_the_source ? hostVerdict::losses : hostVerdict::not_verified;
}

char const * host_verdict_name(hostVerdict verdict)
{
    switch (verdict) {
    case hostVerdict::verified:
        return "verified";
    case hostVerdict::differs:
        return "differs";
    case hostVerdict::losses:
        return "losses";
    case hostVerdict::not_verified:
        break;
    }
    return "not_verified";
}

sdkText host_verdict_text(hostVerdict verdict, hostFindings const & findings, std::int64_t failed,
                          bool counts_only, std::string const & output)
{
    switch (verdict) {
    case hostVerdict::verified:
        return counts_only
                   ? sdkText("host::Verified by counts: %s was read back and has what the source has", output)
                   : sdkText("host::Verified: %s was read back and agrees with the source", output);
    case hostVerdict::differs:
        return sdkText("host::Differs: %s was read back; differences from the source: %d", output,
                       findings.count(sdkWeight::difference));
    case hostVerdict::losses:
        return sdkText("host::Losses: things of the source that are not in %s: %d", output,
                       losses(findings, failed));
    case hostVerdict::not_verified:
        break;
    }
    return sdkText("host::Not verified: %s could not be held against its source", output);
}

sdkText host_verdict_text_without_output(hostVerdict verdict, hostFindings const & findings,
                                         std::int64_t failed, std::string const & output)
{
    if (verdict == hostVerdict::losses) {
        return sdkText("host::Losses: %s was not written; things of the source that gave no shape: %d",
                       output, losses(findings, failed));
    }
    return sdkText("host::Not verified: %s was not written", output);
}
