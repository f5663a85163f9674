#include "sglTranslatedFilter.h"

#include "sglNlsHelp.h"

#include <algorithm>
#include <string>

namespace {

/// The label of an entry that shows its patterns behind the label: "STEP Files" of
/// "STEP Files (*.stp)|*.stp". Of any other entry the whole.
std::string label_of(std::string const & entry)
{
    auto const bar = entry.find('|');
    if (bar == std::string::npos)
        return entry;
    auto const patterns = entry.substr(bar + 1);
    auto const tail = " (" + patterns + ")|" + patterns;
    return entry.ends_with(tail) ? entry.substr(0, entry.size() - tail.size()) : entry;
}

/// A whole entry may have a translation; else the label has, which stays when a format gets another
/// extension.
utString translated(sdbUntranslatedFilterElement const & element)
{
    std::string const entry = element.filter_string().str();
    if (entry.empty())
        return utString();
    auto const * const help = getNlsHelp();
    utString const whole = help->gsprintf(element.tag().c_str(), entry.c_str());
    if (whole != help->gsprintf("DO_NOT_TRANSLATE", entry.c_str()))
        return whole;
    auto const label = label_of(entry);
    return help->gsprintf(element.tag().c_str(), label.c_str()) + utString(entry.substr(label.size()));
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
