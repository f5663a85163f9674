#include "app/sglConfigText.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>
#include <wx/string.h>

namespace {

using Text = std::wstring_view;

/// The toolkit makes a nested group of each part of a name, and ends them in as deep a recursion.
constexpr std::size_t longest_name = 255;

/// What the toolkit is given for an empty line.
constexpr std::string_view empty_line = " ";

/// The toolkit's own opinion of what a blank is counts here, for it looks at the lines next.
Text trimmed(Text text)
{
    while (!text.empty() && wxIsspace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && wxIsspace(text.back()))
        text.remove_suffix(1);
    return text;
}

bool is_blank_or_comment(Text text)
{
    return text.empty() || text[0] == '#' || text[0] == ';';
}

/// Where `end` stands for the first time without a backslash before it.
std::size_t find_unescaped(Text text, wchar_t end)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == end)
            return i;
        if (text[i] == '\\')
            ++i;
    }
    return Text::npos;
}

/// A name as the toolkit reads it; none where nothing follows a backslash.
std::optional<std::wstring> unescaped(Text text)
{
    std::wstring name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && ++i == text.size())
            return std::nullopt;
        name += text[i];
    }
    return name;
}

bool is_group_name(std::wstring const & name)
{
    std::size_t begin = 0;
    while (true) {
        auto const end = std::min(name.find('/', begin), name.size());
        auto const part = Text(name).substr(begin, end - begin);
        if (part.empty() || part == L"." || part == L"..")
            return false;
        if (end == name.size())
            return name.size() <= longest_name;
        begin = end + 1;
    }
}

/// A name of this kind would be an entry that nobody may change.
bool is_unchangeable(std::wstring const & name)
{
    return name[0] == '!';
}

bool is_entry(Text line)
{
    auto const end = find_unescaped(line, '=');
    if (end == Text::npos)
        return false;
    auto const name = unescaped(trimmed(line.substr(0, end)));
    return name && !name->empty() && name->size() <= longest_name && !is_unchangeable(*name);
}

/// None for bytes that are no text, and for control characters, of which some end a line for the toolkit.
std::optional<std::wstring> decoded(std::string_view bytes)
{
    auto const is_control = [](unsigned char c) { return (c < 0x20 && c != '\t') || c == 0x7f; };
    if (std::any_of(bytes.begin(), bytes.end(), is_control))
        return std::nullopt;
    auto const text = wxString::FromUTF8(bytes.data(), bytes.size());
    if (text.empty() && !bytes.empty())
        return std::nullopt;
    return text.ToStdWstring();
}

bool begins_as_heading(std::string_view line)
{
    auto const begin = line.find_first_not_of(" \t");
    return begin != std::string_view::npos && line[begin] == '[';
}

/// Groups are the same for the toolkit when their names differ by case alone.
struct WithoutCase {
    bool operator()(wxString const & a, wxString const & b) const { return a.CmpNoCase(b) < 0; }
};

class Groups {
public:
    void add(std::string_view line)
    {
        auto const text = decoded(line);
        auto const shown = trimmed(text ? Text(*text) : Text());
        if (text && is_blank_or_comment(shown))
            take(line.empty() ? empty_line : line);
        else if (text ? shown[0] == '[' : begins_as_heading(line))
            begin_group(line, shown);
        else if (text && is_entry(shown))
            take(line);
        else
            m_whole = false;
    }
    sglConfigText text() const
    {
        sglConfigText result{.lines = {}, .whole = m_whole};
        for (auto const & group : m_groups)
            result.lines += group;
        return result;
    }

private:
    void take(std::string_view line)
    {
        if (m_known)
            m_groups[m_current].append(line) += '\n';
        else
            m_whole = false;
    }
    /// `shown` is empty for a line that is no text.
    void begin_group(std::string_view line, Text shown)
    {
        auto const end = find_unescaped(shown, ']');
        auto const name = end == Text::npos ? std::nullopt : unescaped(shown.substr(1, end - 1));
        m_known = name && is_group_name(*name);
        if (!m_known) {
            m_whole = false;
            return;
        }
        auto const [at, is_new] = m_index.try_emplace(wxString(*name), m_groups.size());
        m_current = at->second;
        bool const clean = is_blank_or_comment(trimmed(shown.substr(end + 1)));
        m_whole = m_whole && is_new && clean;
        if (!is_new)
            return;
        m_groups.emplace_back();
        if (clean)
            take(line);
        else
            take(wxString(std::wstring(shown.substr(0, end + 1))).utf8_string());
    }

    std::vector<std::string> m_groups = {""}; // what stands before the first heading comes first
    std::map<wxString, std::size_t, WithoutCase> m_index;
    std::size_t m_current = 0;
    bool m_known = true; // whether the lines to come belong to a group that could be read
    bool m_whole = true;
};

} // namespace

sglConfigText sgl_config_text(std::string_view content)
{
    if (content.starts_with("\xEF\xBB\xBF")) // the mark of the encoding
        content.remove_prefix(3);
    Groups groups;
    while (!content.empty()) {
        auto const end = std::min(content.find('\n'), content.size());
        auto line = content.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        groups.add(line);
        content.remove_prefix(std::min(end + 1, content.size()));
    }
    return groups.text();
}

std::string sgl_config_content(std::string const & lines)
{
    std::string content;
    std::size_t begin = 0;
    while (begin < lines.size()) {
        auto const end = std::min(lines.find('\n', begin), lines.size());
        auto const line = std::string_view(lines).substr(begin, end - begin);
        content.append(line == empty_line ? std::string_view() : line) += '\n';
        begin = end + 1;
    }
    return content;
}
