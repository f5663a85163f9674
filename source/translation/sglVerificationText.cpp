#include "sglVerificationText.h"

#include "sglResourceString.h"

namespace {

constexpr char const * text_domain = "vmrgrlib";

} // namespace

utString sgl_verification_heading(sdbVerdict verdict)
{
    switch (verdict) {
    case sdbVerdictVerified:
        return sglGUIString("d.report.tree::Verification : Verified", text_domain).process();
    case sdbVerdictDiffers:
        return sglGUIString("d.report.tree::Verification : Differences", text_domain).process();
    case sdbVerdictLosses:
        return sglGUIString("d.report.tree::Verification : Losses", text_domain).process();
    case sdbVerdictNotVerified:
        return sglGUIString("d.report.tree::Verification : Not Verified", text_domain).process();
    case sdbVerdictNone:
        break;
    }
    return sglGUIString("d.report.tree::Findings :", text_domain).process();
}

utString sgl_finding_line(sdbFinding const & finding)
{
    auto const text = ut_text_arguments(finding.text);
    switch (finding.weight) {
    case sdbWeightNote:
        return sglGUIString("d.report.tree::Note : %s", text_domain).process(text);
    case sdbWeightDifference:
        return sglGUIString("d.report.tree::Difference : %s", text_domain).process(text);
    case sdbWeightLoss:
        break;
    }
    return sglGUIString("d.report.tree::Loss : %s", text_domain).process(text);
}

utString sgl_findings_left_out_line(std::size_t number)
{
    return sglGUIString("d.report.tree::%d more findings are not listed", text_domain)
        .process(ut_text_arguments(static_cast<std::int64_t>(number)));
}
