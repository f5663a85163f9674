#include "step/stepFile.h"

#include <algorithm>

namespace {

constexpr std::string_view end_of_file = "END-ISO-10303-21";

// A header that is longer than this would be a very odd one; no schema is looked for beyond.
constexpr std::size_t header_size = 64 * 1024;

std::string_view without_space_and_comments(std::string_view text)
{
    for (;;) {
        auto const begin = text.find_first_not_of(" \t\r\n\f\v");
        text.remove_prefix(std::min(begin, text.size()));
        if (!text.starts_with("/*")) {
            return text;
        }
        auto const end = text.find("*/", 2);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
    }
}

std::string schema_in(std::string_view header)
{
    std::string schema;
    auto const begin = header.find("FILE_SCHEMA");
    if (begin == std::string_view::npos) {
        return schema;
    }
    auto rest = header.substr(begin);
    rest = rest.substr(0, rest.find(';'));
    for (auto quote = rest.find('\''); quote != std::string_view::npos; quote = rest.find('\'')) {
        rest.remove_prefix(quote + 1);
        auto const name = rest.substr(0, rest.find('\''));
        schema += (schema.empty() ? "" : ", ");
        schema += name.substr(0, name.find_first_of(" {"));
        rest.remove_prefix(std::min(name.size() + 1, rest.size()));
    }
    return schema;
}

bool valid_utf8(std::string_view text)
{
    int missing = 0;
    for (unsigned char const byte : text) {
        if (missing > 0) {
            if ((byte & 0xC0) != 0x80) {
                return false;
            }
            --missing;
        } else if (byte >= 0x80) {
            missing = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : 1;
            if (byte < 0xC2 || byte >= 0xF5) {
                return false;
            }
        }
    }
    return missing == 0;
}

} // namespace

stepFile::stepFile(std::string_view text)
{
    // Some exporters put a byte order mark before the text.
    mark = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    text.remove_prefix(mark);
    begins = without_space_and_comments(text).starts_with("ISO-10303-21");
    auto const end = text.rfind(end_of_file);
    ends = end != std::string_view::npos &&
           without_space_and_comments(text.substr(end + end_of_file.size())).starts_with(';');
    auto const sections = text.substr(0, end);
    auto const data = sections.rfind("DATA");
    auto const section_end = sections.rfind("ENDSEC");
    sections_end =
        data != std::string_view::npos && section_end != std::string_view::npos && data < section_end;
    last_section_end = sections_end ? mark + section_end : 0;
    schema = schema_in(text.substr(0, header_size));
    is_utf8 = valid_utf8(text);
}
