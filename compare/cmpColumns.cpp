#include "compare/cmpColumns.h"

#include <algorithm>

namespace {

constexpr std::string_view gap = "  ";

/// Lengths of UTF-8 sequences by their first byte; what is none is taken byte by byte.
std::size_t sequence(std::string_view text, std::size_t at)
{
    auto const byte = static_cast<unsigned char>(text[at]);
    std::size_t const length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
    return std::min(length, text.size() - at);
}

/// From U+1100 on, but for punctuation, which is narrow, nearly all scripts are wide.
std::size_t columns_of(std::string_view character)
{
    if (character.size() < 3)
        return 1;
    auto const byte = static_cast<unsigned char>(character[0]);
    return byte >= 0xE3 ? 2 : 1;
}

std::vector<std::string_view> characters(std::string_view text)
{
    std::vector<std::string_view> result;
    for (std::size_t at = 0; at < text.size();) {
        auto const length = sequence(text, at);
        result.push_back(text.substr(at, length));
        at += length;
    }
    return result;
}

} // namespace

std::size_t cmp_width(std::string_view text)
{
    std::size_t width = 0;
    for (auto const character : characters(text))
        width += columns_of(character);
    return width;
}

std::string cmp_cut(std::string_view text, std::size_t width)
{
    constexpr std::string_view dots = "...";
    if (cmp_width(text) <= width)
        return std::string(text);
    auto const room = width > dots.size() ? width - dots.size() : 0;
    auto const all = characters(text);
    std::string front;
    std::string back;
    std::size_t taken = 0;
    // The end tells more of a path or a numbered name, so it gets the odd column.
    for (auto at = all.rbegin(); at != all.rend() && taken + columns_of(*at) <= room - room / 2; ++at) {
        taken += columns_of(*at);
        back.insert(0, *at);
    }
    std::size_t used = 0;
    for (auto at = all.begin(); at != all.end() && used + columns_of(*at) <= room / 2; ++at) {
        used += columns_of(*at);
        front += *at;
    }
    return front + std::string(dots) + back;
}

std::string cmp_wrap(std::string_view text, std::size_t width)
{
    std::string result;
    std::size_t column = 0;
    while (!text.empty()) {
        auto const end = std::min(text.find(' '), text.size());
        auto const word = text.substr(0, end);
        auto const size = cmp_width(word);
        if (column > 0 && column + 1 + size > width) {
            result += "\n" + std::string(gap);
            column = gap.size();
        } else if (column > 0) {
            result += ' ';
            ++column;
        }
        result += word;
        column += size;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

std::string cmp_columns(std::vector<std::vector<std::string>> const & rows)
{
    std::vector<std::size_t> widths;
    for (auto const & row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t at = 0; at < row.size(); ++at)
            widths[at] = std::max(widths[at], cmp_width(row[at]));
    }
    std::string text;
    for (auto const & row : rows) {
        std::string line;
        for (std::size_t at = 0; at < row.size(); ++at) {
            line += row[at];
            line.append(widths[at] - cmp_width(row[at]) + gap.size(), ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}
