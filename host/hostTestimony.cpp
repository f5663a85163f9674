#include "host/hostTestimony.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <utility>

using nlohmann::json;

namespace {

std::string line_of(json const & value)
{
    return value.dump(-1, ' ', false, json::error_handler_t::replace);
}

json to_json(sdkText const & text)
{
    json arguments = json::array();
    for (auto const & argument : text.arguments()) {
        std::visit([&](auto const & value) { arguments.push_back(value); }, argument);
    }
    return {{"key", text.key()}, {"args", std::move(arguments)}};
}

sdkText text_from(json const & value)
{
    std::vector<sdkArgument> arguments;
    for (auto const & argument : value.at("args")) {
        if (argument.is_string()) {
            arguments.emplace_back(argument.get<std::string>());
        } else if (argument.is_number_integer()) {
            arguments.emplace_back(argument.get<std::int64_t>());
        } else {
            // Infinite numbers have no form in JSON.
            arguments.emplace_back(argument.is_number() ? argument.get<double>() : 0.0);
        }
    }
    return sdkText::from(value.at("key").get<std::string>(), std::move(arguments));
}

json to_json(sdkFinding const & finding)
{
    json value = {{"weight", static_cast<int>(finding.weight)},
                  {"kind", finding.kind},
                  {"part", finding.part},
                  {"place", finding.place},
                  {"text", to_json(finding.text)}};
    if (finding.source) {
        value["source"] = *finding.source;
    }
    if (finding.output) {
        value["output"] = *finding.output;
    }
    return value;
}

std::optional<double> number_in(json const & value, char const * name)
{
    auto const found = value.find(name);
    return found != value.end() && found->is_number() ? std::optional(found->get<double>()) : std::nullopt;
}

sdkFinding finding_from(json const & value)
{
    return {static_cast<sdkWeight>(value.at("weight").get<int>()),
            value.at("kind").get<std::string>(),
            value.at("part").get<std::string>(),
            value.at("place").get<std::string>(),
            number_in(value, "source"),
            number_in(value, "output"),
            text_from(value.at("text"))};
}

// The fields of a promise that are true or false, so that none is forgotten in one direction.
template <class Promise, class Visit>
void each_flag(Promise & promise, Visit const & visit)
{
    visit("made", promise.made);
    visit("structure", promise.holds.structure);
    visit("names", promise.holds.names);
    visit("colours", promise.holds.colours);
    visit("layers", promise.holds.layers);
    visit("curves", promise.holds.curves);
    visit("points", promise.holds.points);
    visit("surfaces", promise.holds.surfaces);
    visit("visibility", promise.holds.visibility);
    visit("transparency", promise.holds.transparency);
    visit("solids", promise.holds.solids);
    visit("exact_curves", promise.exact_curves);
    visit("ascii_names", promise.ascii_names);
    visit("hidden", promise.hidden);
    visit("checked", promise.checked);
    visit("annotations", promise.annotations);
}

} // namespace

std::string host_write_question(hostQuestion const & question)
{
    json value = {{"written", question.written},
                  {"shown", question.shown},
                  {"deflection", question.promise.deflection},
                  {"triangles", question.promise.triangles},
                  {"read_back", question.promise.read_back},
                  {"lost_annotations", question.promise.lost_annotations}};
    each_flag(question.promise, [&](char const * name, bool flag) { value[name] = flag; });
    return line_of(value);
}

hostQuestion host_read_question(std::string const & line)
{
    auto const value = json::parse(line);
    hostQuestion question;
    value.at("written").get_to(question.written);
    value.at("shown").get_to(question.shown);
    value.at("deflection").get_to(question.promise.deflection);
    value.at("triangles").get_to(question.promise.triangles);
    value.at("read_back").get_to(question.promise.read_back);
    value.at("lost_annotations").get_to(question.promise.lost_annotations);
    each_flag(question.promise, [&](char const * name, bool & flag) { value.at(name).get_to(flag); });
    return question;
}

std::string host_write_testimony(hostTestimony const & testimony)
{
    json findings = json::array();
    for (auto const & finding : testimony.findings) {
        findings.push_back(to_json(finding));
    }
    return line_of({{"read_back", testimony.read_back},
                    {"reason", to_json(testimony.reason)},
                    {"findings", std::move(findings)}});
}

hostTestimony host_read_testimony(std::string const & line)
{
    auto const value = json::parse(line);
    hostTestimony testimony;
    value.at("read_back").get_to(testimony.read_back);
    testimony.reason = text_from(value.at("reason"));
    for (auto const & finding : value.at("findings")) {
        testimony.findings.push_back(finding_from(finding));
    }
    return testimony;
}
