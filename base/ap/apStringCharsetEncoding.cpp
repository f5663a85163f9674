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

/// How many bytes of input that cannot be converted belong together.
std::size_t sequence_length(std::string_view rest, bool utf8)
{
    std::size_t length = 1;
    while (utf8 && static_cast<unsigned char>(rest[0]) >= 0xC0 && length < rest.size() &&
           (static_cast<unsigned char>(rest[length]) & 0xC0) == 0x80)
        ++length;
    return length;
}

/// Converts all of `text`. `replace` gives what stands in the output for a piece that cannot be converted.
template <class Replace>
std::string convert(iconv_t converter, std::string_view text, bool from_utf8, bool & error, Replace replace)
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
            auto const length = sequence_length({in, in_left}, from_utf8);
            result += replace(std::string_view(in, length));
            in += length;
            in_left -= length;
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
    auto const bytes = convert(converter.get(), text.view(), false, error,
                               [](std::string_view piece) { return std::string(piece); });
    error = error || text.invalid();
    return apString::from_utf8(bytes);
}

utString apStringCharsetEncoding::convert_to_ut(apString const & text, bool & error) const
{
    error = true;
    auto const converter = open_converter(m_charset.c_str(), "UTF-8");
    if (!converter)
        return utString(text.utf8());
    return utString(convert(converter.get(), text.utf8(), true, error, [](std::string_view piece) {
        // A single byte is one that the way in could not read: it goes back as it came.
        bool const kept_byte = piece.size() == 1 && static_cast<unsigned char>(piece[0]) >= 0x80;
        return kept_byte ? std::string(piece) : std::string("?");
    }));
}
