#pragma once

#include "ut/utString.h"

/// A display language: a language code of two or three letters and perhaps a country. Reads the names that
/// settings (pt-BR), the environment (pt_BR.UTF-8@euro) and the folders of language files (pt_BR) use, and
/// "English".
class nlsLanguage {
public:
    nlsLanguage() = default; ///< no language
    explicit nlsLanguage(utString const & text);

    /// The code, a hyphen and the country (pt-BR). A name that is no language code stands as it was given.
    utString iso_name() const;
    /// The same with an underscore (pt_BR), as folders of language files are called.
    utString name() const;

    utString const & code() const { return m_code; }
    utString const & country() const { return m_country; }
    bool empty() const { return m_code.empty(); }

    nlsLanguage without_country() const;

    /// True where the texts of the program are to be shown as they are written: no language, or plain
    /// English.
    bool is_untranslated() const;

    friend bool operator==(nlsLanguage const &, nlsLanguage const &) = default;

private:
    utString joined(char const * separator) const;

    utString m_code;
    utString m_country;
};
