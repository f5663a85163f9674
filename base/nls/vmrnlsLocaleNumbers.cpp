#include "nls/vmrnlsLocaleNumbers.h"

#include <atomic>
#include <clocale>
#include <langinfo.h>
#include <locale.h>

#include "nls/nlsUtils.h"

namespace {

std::atomic<char> the_decimal_point = '.';

char decimal_point_of_environment()
{
    locale_t const locale = newlocale(LC_NUMERIC_MASK, "", nullptr);
    if (!locale)
        return '.';
    locale_t const before = uselocale(locale);
    char const point = nlsUtils::lookup_decimal_point();
    uselocale(before);
    freelocale(locale);
    return point;
}

} // namespace

void vmrnlsLocaleNumbers::save()
{
    char const point = nlsUtils::lookup_decimal_point();
    the_decimal_point = point == '.' ? decimal_point_of_environment() : point;
}

char vmrnlsLocaleNumbers::decimal_point()
{
    return the_decimal_point;
}
