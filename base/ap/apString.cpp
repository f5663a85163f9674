#include "ap/apString.h"

#include <boost/locale/utf.hpp>
#include <iterator>

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;
using boost::locale::utf::code_point;

constexpr code_point first_escaped_byte = 0xDC80;
constexpr code_point last_escaped_byte = 0xDCFF;
constexpr code_point replacement_character = 0xFFFD;

bool is_text(code_point point)
{
    return boost::locale::utf::is_valid_codepoint(point);
}

} // namespace

apString::apString(std::wstring_view text)
{
    auto const out = std::back_inserter(m_bytes);
    for (wchar_t const c : text) {
        code_point const point = std::char_traits<wchar_t>::to_int_type(c);
        if (point >= first_escaped_byte && point <= last_escaped_byte)
            m_bytes += static_cast<char>(point - first_escaped_byte + 0x80);
        else
            Utf8::encode(is_text(point) ? point : replacement_character, out);
    }
}

apString apString::from_utf8(std::string_view bytes)
{
    apString text;
    text.m_bytes = bytes;
    return text;
}

std::wstring apString::wide() const
{
    std::wstring text;
    text.reserve(m_bytes.size());
    for (auto at = m_bytes.begin(); at != m_bytes.end();) {
        auto behind = at;
        auto const point = Utf8::decode(behind, m_bytes.end());
        if (is_text(point)) {
            text += static_cast<wchar_t>(point);
            at = behind;
        } else {
            text += static_cast<wchar_t>(first_escaped_byte + static_cast<unsigned char>(*at) - 0x80);
            ++at;
        }
    }
    return text;
}

bool apString::well_formed() const
{
    for (auto at = m_bytes.begin(); at != m_bytes.end();)
        if (!is_text(Utf8::decode(at, m_bytes.end())))
            return false;
    return true;
}

apString & apString::operator+=(apString const & tail)
{
    m_bytes += tail.m_bytes;
    return *this;
}
