#include "brep/brepHeader.h"

#include <algorithm>
#include <charconv>

namespace {

void skip_blanks(std::string_view & text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
}

bool take(std::string_view & text, std::string_view word)
{
    bool const there = text.starts_with(word);
    text.remove_prefix(there ? word.size() : 0);
    return there;
}

} // namespace

brepHeader brep_header(std::string_view content)
{
    auto rest = content.substr(0, 4096);
    skip_blanks(rest);
    if (take(rest, "DBRep_DrawableShape")) {
        skip_blanks(rest);
    }
    brepHeader header;
    if (take(rest, "CASCADE Topology V")) {
        header.form = brepForm::text;
    } else if (take(rest, "Open CASCADE Topology V")) {
        header.form = brepForm::binary;
    } else {
        return header;
    }
    auto const [end, failure] = std::from_chars(rest.data(), rest.data() + rest.size(), header.version);
    if (failure != std::errc() || header.version < 1) {
        header.form = brepForm::neither;
    }
    auto const line = content.find('\n', static_cast<std::size_t>(end - content.data()));
    header.sections = line == std::string_view::npos ? content.size() : line + 1;
    return header;
}

bool brep_is_whole(std::string_view content)
{
    auto const header = brep_header(content);
    if (header.form == brepForm::neither || header.too_new()) {
        return false;
    }
    if (header.form == brepForm::binary) {
        return true;
    }
    // The list of the parts of a shape ends with an asterisk. Orientation, number and place of the chief
    // shape come behind the last.
    auto const list = content.rfind('*');
    if (list == std::string_view::npos) {
        return false;
    }
    auto line = content.substr(list + 1);
    skip_blanks(line);
    if (line.empty() || std::string_view("+-ie").find(line.front()) == std::string_view::npos) {
        return false;
    }
    line.remove_prefix(1);
    int shape = 0;
    int place = -1;
    auto const * const end = line.data() + line.size();
    auto const number = std::from_chars(line.data(), end, shape);
    line.remove_prefix(static_cast<std::size_t>(number.ptr - line.data()));
    skip_blanks(line);
    return std::from_chars(line.data(), end, place).ec == std::errc() && shape > 0 && place >= 0;
}
