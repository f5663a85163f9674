#include "sdk/sdkOptions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>

namespace {

template <class Number>
std::optional<double> parsed(std::string const & text)
{
    Number number{};
    auto const end = text.data() + text.size();
    auto const [rest, failure] = std::from_chars(text.data(), end, number);
    if (failure != std::errc() || rest != end || !std::isfinite(static_cast<double>(number))) {
        return std::nullopt;
    }
    return static_cast<double>(number);
}

// The number behind a stored text: 0 or 1 for booleans, 0 for texts; nothing when the text does not fit the
// type.
std::optional<double> number_of(sdkResource const & resource, std::string const & text)
{
    switch (resource.type) {
    case sdkResourceType::boolean:
        if (text != "true" && text != "false") {
            return std::nullopt;
        }
        return text == "true" ? 1.0 : 0.0;
    case sdkResourceType::integer:
        return parsed<std::int64_t>(text);
    case sdkResourceType::real:
        return parsed<double>(text);
    case sdkResourceType::choice:
        if (std::find(resource.values.begin(), resource.values.end(), text) == resource.values.end()) {
            return std::nullopt;
        }
        return 0.0;
    case sdkResourceType::text:
        break;
    }
    return 0.0;
}

// The command line gives the general options to every format, whether or not they mean anything there.
bool is_general(std::string const & name)
{
    return name.starts_with("vmrOpt") || name.starts_with("vmrTol");
}

std::string number_text(double number)
{
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
}

// Why the resource cannot have the text for its value, and what it has instead; empty when it can.
sdkText problem_of(sdkResource const & resource, std::string const & text, std::string const & used)
{
    auto const number = number_of(resource, text);
    if (!number) {
        return sdkText("host::The value %s does not fit the option %s; %s is used instead", text,
                       resource.name, used);
    }
    bool const low = resource.minimum && *number < *resource.minimum;
    bool const high = resource.maximum && *number > *resource.maximum;
    if (!low && !high) {
        return {};
    }
    if (resource.minimum && resource.maximum) {
        return sdkText("host::The value %s of the option %s is not between %s and %s; %s is used instead",
                       text, resource.name, number_text(*resource.minimum), number_text(*resource.maximum),
                       used);
    }
    if (low) {
        return sdkText(
            "host::The value %s of the option %s is less than the least one, %s; %s is used instead", text,
            resource.name, number_text(*resource.minimum), used);
    }
    return sdkText(
        "host::The value %s of the option %s is greater than the greatest one, %s; %s is used instead", text,
        resource.name, number_text(*resource.maximum), used);
}

} // namespace

sdkOptions::sdkOptions(std::vector<sdkResource> const & declared,
                       std::map<std::string, std::string> const & values, std::vector<sdkText> & problems,
                       std::map<std::string, std::string> const & refused)
{
    for (auto const & resource : declared) {
        auto const number = number_of(resource, resource.default_value);
        if (!number) {
            throw std::logic_error("the default of " + resource.name + " is not of its type");
        }
        m_values[resource.name] = Value{resource.type, resource.default_value, *number};
    }
    for (auto const & [name, text] : values) {
        auto const resource = std::find_if(declared.begin(), declared.end(),
                                           [&](auto const & one) { return one.name == name; });
        if (resource == declared.end() && is_general(name)) {
            continue;
        }
        if (resource == declared.end()) {
            problems.emplace_back("host::The format has no option %s; its value %s has no effect", name,
                                  text);
            continue;
        }
        if (auto const problem = problem_of(*resource, text, resource->default_value); !problem.empty()) {
            problems.push_back(problem);
        } else {
            m_values[name] = Value{resource->type, text, *number_of(*resource, text)};
        }
    }
    for (auto const & resource : declared) {
        if (auto const found = refused.find(resource.name); found != refused.end()) {
            auto const problem = problem_of(resource, found->second, m_values[resource.name].text);
            if (!problem.empty()) {
                problems.push_back(problem);
            }
        }
    }
}

bool sdkOptions::declares(std::string_view name) const
{
    return m_values.find(name) != m_values.end();
}

bool sdkOptions::boolean(std::string_view name) const
{
    return value(name, sdkResourceType::boolean).number != 0.0;
}

std::int64_t sdkOptions::integer(std::string_view name) const
{
    return static_cast<std::int64_t>(value(name, sdkResourceType::integer).number);
}

double sdkOptions::real(std::string_view name) const
{
    return value(name, sdkResourceType::real).number;
}

std::string const & sdkOptions::text(std::string_view name) const
{
    auto const found = m_values.find(name);
    bool const is_choice = found != m_values.end() && found->second.type == sdkResourceType::choice;
    return value(name, is_choice ? sdkResourceType::choice : sdkResourceType::text).text;
}

sdkOptions::Value const & sdkOptions::value(std::string_view name, sdkResourceType type) const
{
    auto const found = m_values.find(name);
    if (found == m_values.end() || found->second.type != type) {
        throw std::logic_error("the manifest does not declare " + std::string(name) +
                               " with the type asked for");
    }
    return found->second;
}
