#include "sglTranslatedFilter.h"

#include "sglNlsHelp.h"

#include <algorithm>

namespace {

utString translated(sdbUntranslatedFilterElement const & element)
{
    if (element.filter_string().empty())
        return utString();
    return getNlsHelp()->gsprintf(element.tag().c_str(), element.filter_string().c_str());
}

} // namespace

sglTranslatedFilterElement::sglTranslatedFilterElement(sdbUntranslatedFilterElement const & element,
                                                       apIStringEncoding const * encoding)
    : m_encoding(encoding), m_text(encoding->to_ap(translated(element))),
      m_category_order(element.category_order())
{
}

sglTranslatedFilterElement::sglTranslatedFilterElement(sglFilterAllFiles, apIStringEncoding const * encoding)
    : m_encoding(encoding),
      m_text(encoding->to_ap(getNlsHelp()->gsprintf("vmrgrlib", "All Files") + " (*.*)" + "|*.*|")),
      m_category_order(-1)
{
}

utString sglTranslatedFilterElement::translated_filter_string() const
{
    return m_encoding->to_ut(m_text);
}

bool sglTranslatedFilterElementOrder::operator()(sglTranslatedFilterElement const & a,
                                                 sglTranslatedFilterElement const & b) const
{
    if (a.category_order() != b.category_order())
        return a.category_order() < b.category_order();
    return m_compare->compare(a.ap_translated_filter_string(), b.ap_translated_filter_string()) < 0;
}

sglTranslatedFilter::sglTranslatedFilter(itIterator<sdbUntranslatedFilterElement> elements,
                                         apIStringEncoding const * encoding, apIStringCompare const * compare)
    : m_encoding(encoding)
{
    while (++elements)
        m_elements.emplace_back(elements(), encoding);
    std::sort(m_elements.begin(), m_elements.end(), sglTranslatedFilterElementOrder(compare));
    m_elements.emplace_back(sglFILTER_ALL_FILES, encoding);
}

utString sglTranslatedFilter::translated_filter_string() const
{
    utString text;
    for (auto const & element : m_elements) {
        utString const entry = element.translated_filter_string();
        if (!entry.empty())
            text << entry << "|";
    }
    return text;
}

apString sglTranslatedFilter::ap_translated_filter_string() const
{
    return m_encoding->to_ap(translated_filter_string());
}
