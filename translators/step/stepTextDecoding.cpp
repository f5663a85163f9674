#include "step/stepTextDecoding.h"

#include <charconv>
#include <optional>

namespace {

void append(std::string & text, unsigned code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | code >> 6);
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        text += static_cast<char>(0xE0 | code >> 12);
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x110000) {
        text += static_cast<char>(0xF0 | code >> 18);
        text += static_cast<char>(0x80 | (code >> 12 & 0x3F));
        text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (code & 0x3F));
    }
}

std::optional<unsigned> hexadecimal(std::string_view digits, std::size_t count)
{
    unsigned code = 0;
    auto const part = digits.substr(0, count);
    auto const read = std::from_chars(part.data(), part.data() + part.size(), code, 16);
    return part.size() == count && read.ptr == part.data() + part.size() ? std::optional(code) : std::nullopt;
}

// Characters of so many digits up to the directive that ends them; how many bytes that were, 0 when it does
// not end.
std::size_t append_wide(std::string & text, std::string_view rest, std::size_t width)
{
    std::string found;
    for (std::size_t at = 0;; at += width) {
        if (rest.substr(at).starts_with("\\X0\\")) {
            text += found;
            return at + 4;
        }
        auto const code = at < rest.size() ? hexadecimal(rest.substr(at), width) : std::nullopt;
        if (!code) {
            return 0;
        }
        append(found, *code);
    }
}

// How many bytes the directive takes at the begin of the rest; 0 when there is none.
std::size_t append_directive(std::string & text, std::string_view rest)
{
    if (rest.starts_with("''") || rest.starts_with("\\\\")) {
        text += rest.front();
        return 2;
    }
    if (rest.starts_with("\\S\\") && rest.size() > 3) {
        append(text, static_cast<unsigned char>(rest[3]) + 0x80U);
        return 4;
    }
    if (rest.starts_with("\\X\\")) {
        auto const code = hexadecimal(rest.substr(3), 2);
        append(text, code.value_or('\\'));
        return code ? 5 : 1;
    }
    for (std::size_t const width : {std::size_t(4), std::size_t(8)}) {
        if (rest.starts_with(width == 4 ? "\\X2\\" : "\\X4\\")) {
            auto const length = append_wide(text, rest.substr(4), width);
            return length == 0 ? 0 : length + 4;
        }
    }
    return 0;
}

} // namespace

std::string step_decoded(std::string_view text)
{
    std::string decoded;
    while (!text.empty()) {
        auto length = append_directive(decoded, text);
        if (length == 0) {
            decoded += text.front();
            length = 1;
        }
        text.remove_prefix(length);
    }
    return decoded;
}
