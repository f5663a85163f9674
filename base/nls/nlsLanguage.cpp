#include "nls/nlsLanguage.h"

#include <algorithm>
#include <string_view>

namespace {

bool is_letter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool is_code(std::string_view text)
{
    return (text.size() == 2 || text.size() == 3) && std::all_of(text.begin(), text.end(), is_letter);
}

} // namespace

nlsLanguage::nlsLanguage(utString const & text)
{
    auto name = text.view();
    name = name.substr(0, name.find_first_of(".@"));
    if (name == "C" || name == "POSIX")
        return;
    if (text.case_compare("English") == 0) {
        m_code = "en";
        return;
    }
    auto const separator = name.find_first_of("_-");
    auto const code = name.substr(0, separator);
    if (!is_code(code)) {
        m_code = utString(name);
        return;
    }
    m_code = utString(code);
    m_code.to_lower();
    if (separator != std::string_view::npos) {
        m_country = utString(name.substr(separator + 1));
        if (m_country.length() == 2)
            m_country.to_upper();
    }
}

utString nlsLanguage::joined(char const * separator) const
{
    return m_country.empty() ? m_code : m_code + separator + m_country;
}

utString nlsLanguage::iso_name() const
{
    return joined("-");
}

utString nlsLanguage::name() const
{
    return joined("_");
}

nlsLanguage nlsLanguage::without_country() const
{
    nlsLanguage language = *this;
    language.m_country.make_empty();
    return language;
}

bool nlsLanguage::is_untranslated() const
{
    return m_code.empty() || (m_code == utString("en") && m_country.empty());
}
