#include "ap/apStringCRTEncoding.h"

#include <langinfo.h>
#include <locale.h>
#include <string_view>

namespace {

std::string charset_of(char const * locale_name)
{
    locale_t const locale = newlocale(LC_CTYPE_MASK, locale_name, nullptr);
    if (!locale)
        return "UTF-8";
    std::string charset = nl_langinfo_l(CODESET, locale);
    freelocale(locale);
    // The plain "C" locale says nothing about what lies beyond ASCII.
    return charset == "ANSI_X3.4-1968" ? "UTF-8" : charset;
}

} // namespace

apStringCRTEncoding::apStringCRTEncoding(char const * locale_name)
    : apStringCharsetEncoding(charset_of(locale_name))
{
}
