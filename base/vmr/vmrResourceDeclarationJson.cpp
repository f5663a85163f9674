#include <algorithm>
#include <cstdint>
#include <limits>

#include <nlohmann/json.hpp>

#include "vmr/vmrResourceDeclaration.h"

namespace {

using json = nlohmann::json;

struct KindWord {
    vmrResourceKind kind;
    char const * word;
};

constexpr KindWord kind_words[] = {{vmrResourceKind::boolean, "boolean"},
                                   {vmrResourceKind::integer, "integer"},
                                   {vmrResourceKind::real, "real"},
                                   {vmrResourceKind::text, "text"},
                                   {vmrResourceKind::choice, "choice"}};

/// One reading, which stops with a text at the first thing that is wrong.
class Reading {
public:
    Reading(json const & value, vmrResourceDeclaration & declaration)
        : m_value(value), m_declaration(declaration)
    {
    }

    std::string run()
    {
        if (!m_value.is_object())
            return "a resource must be an object";
        auto const name = find("name");
        if (!name || !name->is_string() || name->get_ref<std::string const &>().empty())
            return "a resource has no name";
        m_declaration.name = *name;
        auto const problem = read_type();
        return problem.empty() ? problem : "the resource \"" + m_declaration.name + "\" " + problem;
    }

private:
    json const * find(char const * name) const
    {
        auto const found = m_value.find(name);
        return found == m_value.end() ? nullptr : &*found;
    }

    std::string read_type()
    {
        auto const type = find("type");
        auto const word = std::find_if(std::begin(kind_words), std::end(kind_words),
                                       [&](KindWord const & k) { return type && *type == k.word; });
        if (word == std::end(kind_words))
            return "needs a type: boolean, integer, real, text or choice";
        m_declaration.kind = word->kind;
        auto problem = read_values();
        if (problem.empty())
            problem = read_bounds();
        return problem.empty() ? read_default() : problem;
    }

    std::string read_values()
    {
        auto const values = find("values");
        if (m_declaration.kind != vmrResourceKind::choice)
            return values ? "has values, which only a choice may have" : "";
        if (!values || !values->is_array() || values->empty())
            return "needs its values, an array";
        for (auto const & value : *values) {
            if (!value.is_string())
                return "has a value that is no text";
            auto const & text = value.get_ref<std::string const &>();
            auto & choices = m_declaration.choices;
            if (std::find(choices.begin(), choices.end(), text) != choices.end())
                return "has the value \"" + text + "\" twice";
            choices.push_back(text);
        }
        return {};
    }

    std::string read_bounds()
    {
        bool const number =
            m_declaration.kind == vmrResourceKind::integer || m_declaration.kind == vmrResourceKind::real;
        for (auto const & [name, bound] :
             {std::pair("minimum", &m_declaration.minimum), std::pair("maximum", &m_declaration.maximum)}) {
            auto const value = find(name);
            if (!value)
                continue;
            if (!number)
                return std::string("has a ") + name + ", which only numbers may have";
            if (!value->is_number())
                return std::string("has a ") + name + " that is no number";
            *bound = value->get<double>();
        }
        if (m_declaration.minimum && m_declaration.maximum && *m_declaration.minimum > *m_declaration.maximum)
            return "has a minimum above its maximum";
        return {};
    }

    std::string read_default()
    {
        auto const value = find("default");
        if (!value)
            return "needs a default";
        bool fits = false;
        std::optional<std::string> text;
        switch (m_declaration.kind) {
        case vmrResourceKind::boolean:
            fits = value->is_boolean();
            text = fits && value->get<bool>() ? "true" : "false";
            break;
        case vmrResourceKind::integer:
            // Unsigned numbers beyond the signed range would turn negative.
            fits = value->is_number_integer() &&
                   (!value->is_number_unsigned() ||
                    value->get<std::uint64_t>() <=
                        static_cast<std::uint64_t>(std::numeric_limits<long long>::max()));
            text = fits ? m_declaration.canonical_integer(value->get<long long>()) : std::nullopt;
            break;
        case vmrResourceKind::real:
            fits = value->is_number();
            text = fits ? m_declaration.canonical_real(value->get<double>()) : std::nullopt;
            break;
        case vmrResourceKind::text:
            fits = value->is_string();
            text = fits ? std::optional(value->get<std::string>()) : std::nullopt;
            break;
        case vmrResourceKind::choice: {
            fits = value->is_string();
            auto const & choices = m_declaration.choices;
            if (fits && std::find(choices.begin(), choices.end(), value->get<std::string>()) != choices.end())
                text = value->get<std::string>();
            break;
        }
        }
        if (!fits)
            return "has a default of another type";
        if (!text)
            return "has a default that is not among its legal values";
        m_declaration.default_value = *text;
        return {};
    }

    json const & m_value;
    vmrResourceDeclaration & m_declaration;
};

json number(double value)
{
    // 0 and 1 come out as they were written, and not as 0.0 and 1.0.
    auto const whole = static_cast<long long>(std::clamp(value, -9e15, 9e15));
    return static_cast<double>(whole) == value ? json(whole) : json(value);
}

json default_json(vmrResourceDeclaration const & declaration)
{
    switch (declaration.kind) {
    case vmrResourceKind::boolean:
        return declaration.default_value == "true";
    case vmrResourceKind::integer:
        return vmr_read_integer(declaration.default_value).value_or(0);
    case vmrResourceKind::real:
        return number(vmr_read_real(declaration.default_value).value_or(0));
    case vmrResourceKind::text:
    case vmrResourceKind::choice:
        break;
    }
    return declaration.default_value;
}

} // namespace

char const * vmr_resource_kind_word(vmrResourceKind kind)
{
    return std::find_if(std::begin(kind_words), std::end(kind_words),
                        [&](KindWord const & k) { return k.kind == kind; })
        ->word;
}

bool vmr_read_resource_declaration(json const & value, vmrResourceDeclaration & declaration,
                                   std::string & problem)
{
    vmrResourceDeclaration result;
    problem = Reading(value, result).run();
    if (!problem.empty())
        return false;
    declaration = std::move(result);
    return true;
}

json vmr_write_resource_declaration(vmrResourceDeclaration const & declaration)
{
    json value = {{"name", declaration.name},
                  {"type", vmr_resource_kind_word(declaration.kind)},
                  {"default", default_json(declaration)}};
    if (declaration.minimum)
        value["minimum"] = number(*declaration.minimum);
    if (declaration.maximum)
        value["maximum"] = number(*declaration.maximum);
    if (declaration.kind == vmrResourceKind::choice)
        value["values"] = declaration.choices;
    return value;
}
