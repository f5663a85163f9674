#include "stl/stlInput.h"

#include "stl/stlBinaryParser.h"

#include <algorithm>
#include <cctype>

namespace {

bool printable(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char character) {
        auto const byte = static_cast<unsigned char>(character);
        return byte >= 0x20 || (byte >= '\t' && byte <= '\r');
    });
}

bool begins_with_solid(std::string_view content)
{
    if (content.starts_with("\xEF\xBB\xBF")) {
        content.remove_prefix(3);
    }
    content.remove_prefix(std::min(content.find_first_not_of(" \t\r\n"), content.size()));
    constexpr std::string_view word = "solid";
    return content.size() > word.size() &&
           std::equal(
               word.begin(), word.end(), content.begin(),
               [](char one, char other) { return one == std::tolower(static_cast<unsigned char>(other)); }) &&
           std::isspace(static_cast<unsigned char>(content[word.size()])) != 0;
}

} // namespace

stlForm stl_form(std::string_view content)
{
    bool const has_header = content.size() >= stl_header_size;
    if (has_header && content.size() == stl_binary_size(stl_binary_count(content))) {
        return stlForm::binary;
    }
    bool const readable = printable(content.substr(0, 1024));
    if (readable && begins_with_solid(content)) {
        return stlForm::text;
    }
    return has_header && !readable ? stlForm::binary : stlForm::neither;
}

bool stl_is_whole(std::string_view content)
{
    switch (stl_form(content)) {
    case stlForm::binary:
        return content.size() == stl_binary_size(stl_binary_count(content));
    case stlForm::text: {
        if (!content.ends_with('\n')) {
            return false;
        }
        content.remove_suffix(1);
        return content.substr(content.find_last_of('\n') + 1).starts_with("endsolid");
    }
    case stlForm::neither:
        break;
    }
    return false;
}
