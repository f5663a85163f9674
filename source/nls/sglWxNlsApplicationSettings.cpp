#include "sglWxNlsApplicationSettings.h"

#include "wxt/wxtStringConverter.h"

nlsErrorData sglWxNlsApplicationSettings::set_display_language(nlsLanguage const & language)
{
    bool const written =
        m_store->Write(wxtStringConverter::to_wx(key_name()), wxtStringConverter::to_wx(language.iso_name()));
    return nlsErrorData(written && m_store->Flush() ? 0 : 1);
}

nlsErrorData sglWxNlsApplicationSettings::get_display_language(nlsLanguage & language)
{
    language = nlsLanguage();
    wxString text;
    if (m_store->Read(wxtStringConverter::to_wx(key_name()), &text))
        language = nlsLanguage(fixup_language_string(wxtStringConverter::to_ut(text).c_str()));
    return nlsErrorData(0);
}

utString sglWxNlsApplicationSettings::key_name() const
{
    return "/" + m_program_key + "/Language/CurrentLanguage";
}

utString sglWxNlsApplicationSettings::fixup_language_string(char const * text)
{
    utString language = text ? text : "";
    if (language.length() != 5 || language[2] != '-')
        return language;
    utString country = language.substring(3, 2);
    country.to_upper();
    return language.substring(0, 3) + country;
}
