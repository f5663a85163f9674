#include "sglResourceDialogBuilder.h"

#include "sdu/ubStreams.h"

namespace {

constexpr int longest_line = 2055;

} // namespace

int sglResourceDialogBuilder::get_line(ubIFStream & stream, utString & line) const
{
    do {
        if (stream.rdstate() != std::ios::goodbit)
            return 0;
        // One byte for the end of the text, and one for the carriage return of a file from another system.
        char buffer[longest_line + 2];
        stream.getline(buffer, sizeof buffer);
        if (stream.fail())
            return 0;
        std::string_view text(buffer, static_cast<std::size_t>(stream.gcount()) - (stream.eof() ? 0 : 1));
        if (text.ends_with('\r'))
            text.remove_suffix(1);
        if (text.size() > longest_line) {
            stream.setstate(std::ios::failbit);
            return 0;
        }
        ++m_line_number;
        line = text;
        line.remove_leading_chars(" ");
    } while (line[0] == '#');
    return 1;
}

int sglResourceDialogBuilder::split_string(utString const & line, utString & key, utString & value)
{
    int const space = line.locate_substring(" ");
    if (space < 0) {
        key = line;
        value.make_empty();
        return 0;
    }
    key = line.substring(0, space);
    value = line.substring(space + 1, line.length());
    return 1;
}

int sglResourceDialogBuilder::get_split_line(ubIFStream & stream, utString & key, utString & value) const
{
    key.make_empty();
    utString line;
    return get_line(stream, line) && !line.empty() && split_string(line, key, value);
}

int sglResourceDialogBuilder::read_attributes(ubIFStream & stream, utStringutStringcoTable & attributes) const
{
    attributes.clear();
    utString line;
    if (!get_line(stream, line) || line != "start_attributes")
        return 0;
    utString key;
    utString value;
    while (get_split_line(stream, key, value))
        attributes[key] = strip_macro(value);
    return key == "end_attributes";
}

utString sglResourceDialogBuilder::strip_macro(utString const & text)
{
    std::string_view constexpr opening = "VMRNLS(\"";
    std::string_view constexpr closing = "\")";
    if (text.view().size() < opening.size() + closing.size() || !text.view().starts_with(opening) ||
        !text.view().ends_with(closing))
        return text;
    auto inside = text.view();
    inside.remove_prefix(opening.size());
    inside.remove_suffix(closing.size());
    utString result(inside);
    replace("\\n", "\n", result);
    replace("\\\"", "\"", result);
    return result;
}

void sglResourceDialogBuilder::replace(utString const & from, utString const & to, utString & text)
{
    for (int at = text.locate_substring(from); at >= 0; at = text.locate_substring(from)) {
        text.remove(at, from.length());
        text.insert(at, to);
    }
}

int sglResourceDialogBuilder::layout_value(utStringutStringcoTable const & attributes, utString const & key,
                                           int value) const
{
    utString text;
    int position = 0;
    int number = 0;
    return attributes.read(key, text) && text.parse(number, position) ? number : value;
}
