#include <algorithm>

#include "vmr/coResourceIterator.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrResourceRegistry.h"

namespace {

constexpr std::string_view head = "# Options of a translator, one to a line: name = value\n";
constexpr std::string_view hex_digits = "0123456789abcdef";

bool is_blank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && is_blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string escaped(std::string_view text, bool is_name)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto const c = text[i];
        auto const byte = static_cast<unsigned char>(c);
        bool const at_end = i == 0 || i + 1 == text.size();
        if (c == '\n')
            result += "\\n";
        else if (c == '\\')
            result += "\\\\";
        else if (byte < 0x20 || byte == 0x7f || (at_end && is_blank(c)) ||
                 (is_name && (c == '=' || (i == 0 && c == '#'))))
            result += {'\\', 'x', hex_digits[byte >> 4], hex_digits[byte & 15]};
        else
            result += c;
    }
    return result;
}

/// Nothing when an escape is broken.
std::optional<std::string> unescaped(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
            continue;
        }
        auto const kind = i + 1 < text.size() ? text[i + 1] : '\0';
        if (kind == 'n' || kind == '\\') {
            result += kind == 'n' ? '\n' : '\\';
            i += 1;
            continue;
        }
        auto const digit = [&](std::size_t at) {
            return at < text.size() ? hex_digits.find(text[at]) : std::string_view::npos;
        };
        auto const high = digit(i + 2);
        auto const low = digit(i + 3);
        if (kind != 'x' || high == std::string_view::npos || low == std::string_view::npos)
            return std::nullopt;
        result += static_cast<char>(high * 16 + low);
        i += 3;
    }
    return result;
}

std::string line_of(std::string_view name, std::string_view value)
{
    return escaped(name, true) + " = " + escaped(value, false) + "\n";
}

std::string range_text(vmrResourceDeclaration const & declaration)
{
    std::string text;
    if (declaration.minimum)
        text += ", from " + vmr_real_text(*declaration.minimum);
    if (declaration.maximum)
        text += (text.empty() ? ", up to " : " to ") + vmr_real_text(*declaration.maximum);
    for (auto const & choice : declaration.choices)
        text += (&choice == &declaration.choices.front() ? ": " : ", ") + escaped(choice, false);
    return text;
}

/// What the resource takes, in brackets behind a blank; empty when anything.
std::string range_in_brackets(std::string const & name)
{
    auto const declaration = vmr_look_up_resource(name);
    auto const range = declaration ? range_text(*declaration) : std::string();
    return range.empty() ? range : " (" + range.substr(2) + ")";
}

/// The problem with a line, empty when there is none.
std::string read_line(std::string_view line, coResourceTable & table)
{
    auto const equals = line.find('=');
    if (equals == std::string_view::npos)
        return "there is no \"=\"";
    auto const name = unescaped(trimmed(line.substr(0, equals)));
    auto const value = unescaped(trimmed(line.substr(equals + 1)));
    if (!name || !value)
        return "a \"\\\" is followed by neither \"\\\", \"n\" nor \"x\" and two hex digits";
    if (name->empty())
        return "there is no name in front of \"=\"";
    auto const canonical = vmr_canonical_value(*name, *value);
    table.set_value(*name, canonical.value_or(*value));
    return canonical ? "" : "\"" + *value + "\" is no legal value of " + *name + range_in_brackets(*name);
}

} // namespace

void vmr_read_resource_text(std::string_view text, coResourceTable & table,
                            std::vector<std::string> & problems)
{
    constexpr std::string_view byte_order_mark = "\xef\xbb\xbf";
    if (text.starts_with(byte_order_mark))
        text.remove_prefix(byte_order_mark.size());
    for (int number = 1; !text.empty(); ++number) {
        auto const end = std::min(text.find('\n'), text.size());
        auto line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        line = trimmed(line);
        if (line.empty() || line.front() == '#')
            continue;
        auto const problem = read_line(line, table);
        if (!problem.empty())
            problems.push_back("line " + std::to_string(number) + ": " + problem);
    }
}

std::string vmr_resource_text(coResourceTable const & table)
{
    std::string text(head);
    for (coResourceIterator it(&table); ++it;)
        text += line_of(it()->key->name.view(), it()->value_text().view());
    return text;
}

std::string vmr_factory_resource_text(std::vector<vmrResourceDeclaration> const & declarations)
{
    std::string text(head);
    for (auto const & declaration : declarations)
        text += std::string("\n# ") + vmr_resource_kind_word(declaration.kind) + range_text(declaration) +
                "\n" + line_of(declaration.name, declaration.default_value);
    return text;
}
