#include "ap/apStringCharsetEncoding.h"

#include <cerrno>
#include <iconv.h>
#include <memory>
#include <utility>

namespace {

struct CloseConverter {
    void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, CloseConverter>;

Converter open_converter(char const * to, char const * from)
{
    iconv_t const converter = iconv_open(to, from);
    return Converter(converter == reinterpret_cast<iconv_t>(-1) ? nullptr : converter);
}

/// The character that `text` begins with, or an empty piece where it does not begin with UTF-8.
std::string_view first_character(std::string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        ++length;
    auto const piece = text.substr(0, length);
    return apString::from_utf8(piece).well_formed() ? piece : std::string_view();
}

/// What goes into the output for input that cannot be converted, and how many bytes of input that accounts
/// for.
struct Replacement {
    std::string text;
    std::size_t length;
};

Replacement kept_byte(std::string_view rest)
{
    return {std::string(rest.substr(0, 1)), 1};
}

template <class Replace>
std::string convert(iconv_t converter, std::string_view text, bool & error, Replace replace)
{
    error = false;
    std::string result;
    std::string input(text);
    char * in = input.data();
    std::size_t in_left = input.size();
    char buffer[1024];
    auto const run = [&](char ** from, std::size_t * from_left) {
        char * out = buffer;
        std::size_t out_left = sizeof buffer;
        auto const status = iconv(converter, from, from_left, &out, &out_left);
        int const problem = status == static_cast<std::size_t>(-1) ? errno : 0;
        result.append(buffer, out);
        return problem;
    };
    while (in_left > 0) {
        int const problem = run(&in, &in_left);
        if (problem == EILSEQ || problem == EINVAL) {
            error = true;
            // Some character sets write in a shifted state, which must end before bytes go in from outside.
            run(nullptr, nullptr);
            auto const replacement = replace(std::string_view(in, in_left));
            result += replacement.text;
            in += replacement.length;
            in_left -= replacement.length;
        }
    }
    run(nullptr, nullptr);
    return result;
}

} // namespace

apStringCharsetEncoding::apStringCharsetEncoding(std::string charset)
    : m_charset(std::move(charset)), m_usable(open_converter("UTF-8", m_charset.c_str()) != nullptr)
{
}

apString apStringCharsetEncoding::convert_to_ap(utString const & text, bool & error) const
{
    error = true;
    auto const converter = open_converter("UTF-8", m_charset.c_str());
    if (!converter)
        return apString::from_utf8(text.view());
    auto const bytes = convert(converter.get(), text.view(), error, kept_byte);
    error = error || text.invalid();
    return apString::from_utf8(bytes);
}

utString apStringCharsetEncoding::convert_to_ut(apString const & text, bool & error) const
{
    error = true;
    auto const converter = open_converter(m_charset.c_str(), "UTF-8");
    if (!converter)
        return utString(text.utf8());
    return utString(convert(converter.get(), text.utf8(), error, [](std::string_view rest) {
        // What is not UTF-8 here is a byte that the way in could not read: it goes back as it came.
        auto const character = first_character(rest);
        return character.empty() ? kept_byte(rest) : Replacement{"?", character.size()};
    }));
}
