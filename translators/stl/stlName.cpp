#include "stl/stlName.h"

#include <algorithm>
#include <iconv.h>

namespace {

// Empty when the bytes are not of that encoding.
std::string converted(std::string_view bytes, char const * encoding)
{
    auto const converter = ::iconv_open("UTF-8", encoding);
    std::string result(2 * bytes.size(), '\0');
    std::string input(bytes);
    char * from = input.data();
    std::size_t left = input.size();
    char * to = result.data();
    std::size_t room = result.size();
    bool const done = ::iconv(converter, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
    ::iconv_close(converter);
    result.resize(done ? result.size() - room : 0);
    return result;
}

} // namespace

std::string stl_name_of(std::string_view bytes)
{
    auto const begin = bytes.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos) {
        return {};
    }
    bytes = bytes.substr(begin, bytes.find_last_not_of(" \t\r\n") - begin + 1);
    auto const name = converted(bytes, "UTF-8");
    return name.empty() ? converted(bytes, "ISO-8859-1") : name;
}

std::string stl_name_for(std::string const & name)
{
    auto line = name;
    std::replace_if(
        line.begin(), line.end(), [](char character) { return static_cast<unsigned char>(character) < 0x20; },
        ' ');
    return line;
}
