#include "ap/apStringCompareInsensitive.h"

#include <algorithm>
#include <compare>
#include <cwctype>
#include <locale.h>
#include <string>

namespace {

wchar_t fold(wchar_t c)
{
    // The program's own LC_CTYPE is "C", which knows no letters beyond ASCII.
    static locale_t const locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    wint_t const letter = std::char_traits<wchar_t>::to_int_type(c);
    if (!locale)
        return static_cast<wchar_t>(letter < 0x80 ? std::towlower(letter) : letter);
    // By way of the capital, since some letters have two small forms.
    return static_cast<wchar_t>(towlower_l(towupper_l(letter, locale), locale));
}

} // namespace

int apStringCompareInsensitive::compare(apString const & a, apString const & b) const
{
    auto const left = a.wide();
    auto const right = b.wide();
    auto const order =
        std::lexicographical_compare_three_way(left.begin(), left.end(), right.begin(), right.end(),
                                               [](wchar_t x, wchar_t y) { return fold(x) <=> fold(y); });
    return std::is_lt(order) ? -1 : std::is_gt(order) ? 1 : 0;
}

int apStringCompareInsensitive::compare_ut(utString const & a, utString const & b) const
{
    return compare(m_encoding->to_ap(a), m_encoding->to_ap(b));
}
