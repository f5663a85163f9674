#include "sdb/sdbManifestReader.h"

#include <algorithm>
#include <limits>

#include <nlohmann/json.hpp>

namespace {

using json = nlohmann::json;

struct Problem {
    std::string text;
};

/// A value of the manifest together with the place where it stands.
class Field {
public:
    Field(json const & value, std::string place) : m_value(&value), m_place(std::move(place)) {}

    [[noreturn]] void refuse(std::string const & reason) const
    {
        throw Problem{(m_place.empty() ? "the manifest" : m_place) + " " + reason};
    }

    json const & value() const { return *m_value; }
    std::string const & place() const { return m_place; }

    bool has(char const * name) const { return object().m_value->contains(name); }
    Field operator[](char const * name) const
    {
        auto const place = m_place.empty() ? name : m_place + "." + name;
        auto const found = object().m_value->find(name);
        if (found == m_value->end())
            throw Problem{place + " is missing"};
        return Field(*found, place);
    }

    Field const & object() const { return demand(m_value->is_object(), "must be an object"); }

    std::vector<Field> elements() const
    {
        demand(m_value->is_array(), "must be an array");
        std::vector<Field> fields;
        for (std::size_t i = 0; i < m_value->size(); ++i)
            fields.emplace_back((*m_value)[i], m_place + "[" + std::to_string(i) + "]");
        return fields;
    }

    std::string text() const
    {
        return demand(m_value->is_string(), "must be a text").m_value->get<std::string>();
    }
    std::string filled_text() const
    {
        auto const result = text();
        demand(!result.empty(), "must not be empty");
        return result;
    }
    bool boolean() const
    {
        return demand(m_value->is_boolean(), "must be true or false").m_value->get<bool>();
    }
    std::uint64_t whole(std::uint64_t least, std::uint64_t most) const
    {
        demand(m_value->is_number_unsigned() ||
                   (m_value->is_number_integer() && m_value->get<std::int64_t>() >= 0),
               "must be a whole number and not negative");
        auto const result = m_value->get<std::uint64_t>();
        demand(result >= least && result <= most,
               "must lie between " + std::to_string(least) + " and " + std::to_string(most));
        return result;
    }

    Field const & demand(bool met, std::string const & reason) const
    {
        if (!met)
            refuse(reason);
        return *this;
    }

private:
    json const * m_value;
    std::string m_place;
};

sdbFormatSignature read_signature(Field const & field)
{
    auto const kind = field["kind"].text();
    if (kind == "text")
        return sdbTextSignature{field["text"].filled_text(),
                                static_cast<std::size_t>(field["within"].whole(1, sdb_signature_reach))};
    if (kind == "column")
        return sdbColumnSignature{static_cast<std::size_t>(field["column"].whole(1, sdb_signature_reach)),
                                  field["text"].filled_text()};
    if (kind == "words")
        return sdbWordsSignature{field["first"].filled_text(), field["then"].filled_text()};
    if (kind == "counted") {
        auto const header = field["header"].whole(4, sdb_signature_reach);
        return sdbCountedSignature{header, field["count_offset"].whole(0, header - 4),
                                   field["record"].whole(1, std::numeric_limits<std::uint32_t>::max())};
    }
    field["kind"].refuse("\"" + kind + "\" is none of text, column, counted and words");
}

std::string read_extension(Field const & field)
{
    auto const extension = field.filled_text();
    field.demand(extension.find_first_of("./*?|;") == std::string::npos, "must be an extension without dot");
    return extension;
}

std::string read_file_name(Field const & field)
{
    auto const name = field.filled_text();
    field.demand(name.find('/') == std::string::npos && name != "." && name != "..",
                 "must be a file name without directory");
    return name;
}

vmrResourceDeclaration read_resource(Field const & field)
{
    vmrResourceDeclaration resource;
    std::string problem;
    if (!vmr_read_resource_declaration(field.value(), resource, problem))
        field.refuse("cannot be used: " + problem);
    return resource;
}

void read_sides(Field const & field, sdbFormatDeclaration & format)
{
    for (auto const & element : field.elements()) {
        auto const side = element.text();
        element.demand(side == "input" || side == "output", "must be \"input\" or \"output\"");
        (side == "input" ? format.input : format.output) = true;
    }
    field.demand(format.input || format.output, "must name a side");
}

sdbFormatDeclaration read_format(Field const & field)
{
    sdbFormatDeclaration format;
    format.name = field["name"].filled_text();
    format.filter = field["filter"].text();
    // A bar parts label and pattern in the text of a file dialog.
    field["filter"].demand(format.filter.find('|') == std::string::npos, "must not hold a bar");
    format.category = field["category"].text();
    for (auto const & extension : field["extensions"].elements())
        format.extensions.push_back(read_extension(extension));
    read_sides(field["sides"], format);
    format.resource_file = read_file_name(field["resource_file"]);
    if (field.has("signatures"))
        for (auto const & signature : field["signatures"].elements())
            format.signatures.push_back(read_signature(signature));
    if (field.has("viewer"))
        format.viewer = field["viewer"].boolean();
    if (field.has("default_output"))
        format.default_output = field["default_output"].text();
    for (auto const & resource : field["resources"].elements())
        format.resources.push_back(read_resource(resource));
    return format;
}

} // namespace

bool sdbManifestReader::read(json const & manifest)
{
    m_formats.clear();
    m_problem.clear();
    try {
        Field const root(manifest, "");
        // The version comes first: a manifest of another version may have any form beyond it.
        auto const interface = root["interface"].whole(0, std::numeric_limits<std::uint32_t>::max());
        if (interface != interface_version)
            throw Problem{"the module has version " + std::to_string(interface) +
                          " of the module interface, and this program needs version " +
                          std::to_string(interface_version)};
        for (auto const & field : root["formats"].elements()) {
            auto format = read_format(field);
            for (auto const & other : m_formats)
                field["name"].demand(other.name != format.name, "\"" + format.name + "\" is declared twice");
            m_formats.push_back(std::move(format));
        }
        root["formats"].demand(!m_formats.empty(), "must hold a format");
        return true;
    } catch (Problem const & problem) {
        m_problem = m_path + ": " + problem.text;
        m_formats.clear();
        return false;
    }
}
