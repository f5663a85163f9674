#include "nls/nlsUtils.h"

#include <langinfo.h>

char nlsUtils::lookup_decimal_point()
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the locale is not changed while numbers are formatted
    char const * point = nl_langinfo(RADIXCHAR);
    bool const single =
        point && static_cast<unsigned char>(point[0]) < 0x80 && point[0] != 0 && point[1] == 0;
    return single ? point[0] : '.';
}
