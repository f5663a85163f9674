#include "nls/vmrnlsTranslatorDefault.h"

#include "nls/vmrnlsKey.h"

utString vmrnlsTranslatorDefault::translate(char const *, char const * key) const
{
    return vmrnlsKey(key ? key : "").text;
}
