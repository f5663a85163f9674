#include "nls/vmrnlsConnector.h"

#include "nls/vmrnlsDisplayer.h"

vmrnlsConnector::vmrnlsConnector(vmrnlsTranslator const * translator, vmrnlsFormatter const * formatter,
                                 vmrnlsDisplayer * displayer)
    : m_texts(translator, formatter), m_displayer(displayer)
{
}

void vmrnlsConnector::write(char const * domain, char const * key, utTextArguments const & arguments)
{
    m_displayer->display(m_texts.vtsprintf(domain, key, arguments).c_str());
}
