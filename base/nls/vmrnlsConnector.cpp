#include "nls/vmrnlsConnector.h"

#include "nls/vmrnlsDisplayer.h"

vmrnlsConnector::vmrnlsConnector(vmrnlsTranslator const * translator, vmrnlsFormatter const * formatter,
                                 vmrnlsDisplayer * displayer)
    : m_texts(translator, formatter), m_displayer(displayer)
{
}

void vmrnlsConnector::write(char const * domain, char const * key, utTextArguments const & arguments)
{
    m_displayer->display(text(domain, key, arguments).c_str());
}

utString vmrnlsConnector::text(char const * domain, char const * key, utTextArguments const & arguments) const
{
    return m_texts.vtsprintf(domain, key, arguments);
}
