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
    return header;
}
