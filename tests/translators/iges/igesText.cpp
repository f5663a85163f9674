#include "igesText.h"

namespace {

std::string right(std::string const & text, std::size_t width)
{
    return std::string(width - text.size(), ' ') + text;
}

std::string record(std::string text, char section, int number)
{
    text.resize(72, ' ');
    return text + section + right(std::to_string(number), 7) + "\n";
}

// Cuts a list of parameters into records of the given width.
std::vector<std::string> lines_of(std::string const & text, std::size_t width)
{
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        auto end = at + width;
        if (end < text.size()) {
            end = text.find_last_of(',', end - 1) + 1;
        }
        lines.push_back(text.substr(at, end - at));
        at = end;
    }
    return lines;
}

std::string fields(std::vector<std::string> const & values)
{
    std::string text;
    for (auto const & value : values) {
        text += right(value, 8);
    }
    return text;
}

} // namespace

int igesText::add(Entity const & entity)
{
    m_entities.push_back(entity);
    return static_cast<int>(2 * m_entities.size() - 1);
}

std::string igesText::text() const
{
    std::string start = record("A file of a test", 'S', 1);
    std::string global;
    int globals = 0;
    auto const parameters = ",,4HTest,8Htest.igs,4HTest,4HTest,32,38,7,308,15,," + m_units +
                            ",1,0.01,15H20260101.000000,1E-6,1000.,,,11,0,;";
    for (auto const & line : lines_of(parameters, 72)) {
        global += record(line, 'G', ++globals);
    }
    std::string directory;
    std::string data;
    int records = 0;
    int number = -1;
    for (auto const & entity : m_entities) {
        number += 2;
        auto const type = std::to_string(entity.type);
        auto const lines = lines_of(type + "," + entity.parameters + ";", 64);
        directory +=
            record(fields({type, std::to_string(records + 1), "0", "0", "0", "0",
                           std::to_string(entity.transformation), "0", entity.status}),
                   'D', number) +
            record(fields({type, "0", "0", std::to_string(lines.size()), std::to_string(entity.form)}), 'D',
                   number + 1);
        for (auto line : lines) {
            line.resize(64, ' ');
            data += record(line + right(std::to_string(number), 8), 'P', ++records);
        }
    }
    auto const count = [](char section, int value) { return section + right(std::to_string(value), 7); };
    return start + global + directory + data +
           record(count('S', 1) + count('G', globals) + count('D', number + 1) + count('P', records), 'T', 1);
}
