#include "nls/vmrnlsTranslatorAndFormatter.h"

vmrnlsTranslatorAndFormatter::vmrnlsTranslatorAndFormatter(vmrnlsTranslator const * translator,
                                                           vmrnlsFormatter const * formatter)
    : m_translator(translator), m_formatter(formatter)
{
}

utString vmrnlsTranslatorAndFormatter::vtsprintf(char const * domain, char const * key,
                                                 utTextArguments const & arguments) const
{
    return m_formatter->format(m_translator->translate(domain, key), arguments);
}
