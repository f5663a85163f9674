#include "ap/apStringCompareInsensitive.h"

#include <algorithm>
#include <cwctype>
#include <locale.h>

namespace {

wchar_t fold(wchar_t c)
{
    // The program's own LC_CTYPE is "C", which knows no letters beyond ASCII.
    static locale_t const locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    auto const letter = static_cast<wint_t>(c);
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
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

int apStringCompareInsensitive::compare_ut(utString const & a, utString const & b) const
{
    return compare(m_encoding->to_ap(a), m_encoding->to_ap(b));
}
