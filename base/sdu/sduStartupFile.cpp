#include "sdu/sduStartupFile.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t\r\v\f";
constexpr std::string_view hex_digits = "0123456789abcdef";

std::string_view trimmed(std::string_view text)
{
    auto const begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::string hex_escape(char c)
{
    auto const byte = static_cast<unsigned char>(c);
    return {'\\', 'x', hex_digits[byte >> 4U], hex_digits[byte & 15U]};
}

std::string escaped(std::string_view text, bool is_key)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char const c = text[i];
        bool const at_edge = i == 0 || i + 1 == text.size();
        if (c == '\\')
            result += "\\\\";
        else if (c == '\n')
            result += "\\n";
        else if (c == '\r')
            result += "\\r";
        else if (c == '\t')
            result += "\\t";
        else if (c == ' ' && at_edge)
            result += "\\s";
        else if (static_cast<unsigned char>(c) < 0x20 || (is_key && (c == '=' || c == '#')))
            result += hex_escape(c);
        else
            result += c;
    }
    return result;
}

std::string unescaped(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        char const next = text[0] == '\\' && text.size() > 1 ? text[1] : '\0';
        auto const plain = std::string_view("nrts\\").find(next);
        unsigned byte = 0;
        if (next != '\0' && plain != std::string_view::npos) {
            result += "\n\r\t \\"[plain];
            text.remove_prefix(2);
        } else if (next == 'x' && text.size() >= 4 && std::isxdigit(static_cast<unsigned char>(text[2])) &&
                   std::isxdigit(static_cast<unsigned char>(text[3]))) {
            std::from_chars(text.data() + 2, text.data() + 4, byte, 16);
            result += static_cast<char>(byte);
            text.remove_prefix(4);
        } else {
            result += text[0];
            text.remove_prefix(1);
        }
    }
    return result;
}

} // namespace

sduStartupFile::sduStartupFile(std::string_view text) : m_byte_order_mark(text.starts_with(byte_order_mark))
{
    if (m_byte_order_mark)
        text.remove_prefix(byte_order_mark.size());
    while (!text.empty()) {
        auto const end = std::min(text.find('\n'), text.size());
        auto const line = text.substr(0, end);
        m_carriage_returns = line.ends_with('\r');
        Line entry{std::string(line), std::nullopt};
        auto const equals = line.find('=');
        if (equals != std::string_view::npos && !trimmed(line).starts_with('#'))
            entry.key = unescaped(trimmed(line.substr(0, equals)));
        m_lines.push_back(std::move(entry));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

utString sduStartupFile::find(utString const & key) const
{
    auto const found = std::find_if(m_lines.rbegin(), m_lines.rend(),
                                    [&](Line const & line) { return line.key && *line.key == key.view(); });
    if (found == m_lines.rend())
        return utString::make_invalid();
    return utString(unescaped(trimmed(std::string_view(found->text).substr(found->text.find('=') + 1))));
}

void sduStartupFile::set(utString const & key, utString const & value)
{
    auto const is_key = [&](Line const & line) { return line.key && *line.key == key.view(); };
    if (value.invalid()) {
        std::erase_if(m_lines, is_key);
        return;
    }
    Line line{escaped(key.view(), true) + " = " + escaped(value.view(), false), key.str()};
    if (m_carriage_returns)
        line.text += '\r';
    auto const found = std::find_if(m_lines.rbegin(), m_lines.rend(), is_key);
    if (found == m_lines.rend())
        m_lines.push_back(std::move(line));
    else
        *found = std::move(line);
}

std::string sduStartupFile::text() const
{
    std::string result(m_byte_order_mark ? byte_order_mark : std::string_view());
    for (auto const & line : m_lines)
        result += line.text + '\n';
    return result;
}
