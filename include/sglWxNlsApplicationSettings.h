#pragma once

#include "nls/nlsApplicationSettings.h"
#include "sglConfigStore.h"
#include "ut/utString.h"

/// Keeps the user's choice of language in the configuration store, under the program's key.
class sglWxNlsApplicationSettings : public nlsApplicationSettings {
public:
    /// The store is not owned and must outlive this object.
    sglWxNlsApplicationSettings(sglConfigStore * store, utString program_key)
        : m_store(store), m_program_key(std::move(program_key))
    {
    }

    nlsErrorData set_display_language(nlsLanguage const & language) override;
    /// A missing key is no error and gives a default language.
    nlsErrorData get_display_language(nlsLanguage & language) override;

    utString key_name() const; ///< "/" program key "/Language/CurrentLanguage"

    /// Repairs values of the form en-gb into en-GB; everything else passes through.
    static utString fixup_language_string(char const * text);

private:
    sglConfigStore * m_store;
    utString m_program_key;
};
