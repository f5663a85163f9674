#include "compare/cmpJson.h"

namespace {

using json = nlohmann::ordered_json;

// Names out of broken files may hold anything.
std::string line_of(json const & value)
{
    return value.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
}

json finding_value(cmpFinding const & finding)
{
    json value = {{"kind", finding.kind}, {"part", finding.part}, {"place", finding.place}};
    value["a"] = finding.a ? json(*finding.a) : json();
    value["b"] = finding.b ? json(*finding.b) : json();
    value["text"] = finding.text;
    return value;
}

json side_value(cmpSide const & side)
{
    json value = {{"file", side.file}, {"format", side.format}};
    for (auto const & [name, amount] : side.inventory.items())
        value[name] = amount;
    auto findings = json::array();
    for (auto const & finding : side.findings) {
        auto one = finding_value(finding);
        one["loss"] = finding.weight == sdbWeightLoss;
        findings.push_back(std::move(one));
    }
    value["findings"] = std::move(findings);
    return value;
}

char const * verdict_word(sdbVerdict verdict)
{
    return verdict == sdbVerdictVerified  ? "verified"
           : verdict == sdbVerdictDiffers ? "differs"
                                          : "not_verified";
}

} // namespace

std::string cmp_json(cmpReport const & report)
{
    if (report.b.inventory.is_null() || report.verdict == sdbVerdictNone)
        return cmp_json_problem(report.problem);
    json value;
    value["same"] = report.compared() ? json(report.verdict == sdbVerdictVerified) : json();
    value["verdict"] = verdict_word(report.verdict);
    if (!report.compared())
        value["error"] = report.problem;
    value["a"] = side_value(report.a);
    value["b"] = side_value(report.b);
    value["pairs"] = report.pairs;
    value["differences"] = json::array();
    value["notes"] = json::array();
    for (auto const & finding : report.findings)
        value[cmp_is_difference(finding) ? "differences" : "notes"].push_back(finding_value(finding));
    return line_of(value);
}

std::string cmp_json_problem(std::string const & problem)
{
    return line_of({{"error", problem}});
}
