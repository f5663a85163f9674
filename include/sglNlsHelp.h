#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "nls/vmrnlsDisplayer.h"
#include "nls/vmrnlsFormatter.h"
#include "nls/vmrnlsParserDefaultThenLocale.h"
#include "nls/vmrnlsTranslator.h"
#include "nls/vmrnlsTranslatorAndFormatter.h"
#include "sdb/sdbSearchPath.h"
#include "ut/utString.h"
#include "ut/utTextArguments.h"
#include "vmr/vmrabsOutput.h"

class wxLocale;

/// The language of the program: settles the language asked for, the language of the messages and that of the
/// toolkit, owns the translator and the formatter through which every text passes, and reads the numbers that
/// users type. Exists once, reached by getNlsHelp(). Graphical (or main) thread; the language must not change
/// while translating() is non-zero, because connectors made for a translation use the translator and
/// formatter of their making.
class sglNlsHelp {
public:
    sglNlsHelp();
    ~sglNlsHelp();
    sglNlsHelp(sglNlsHelp const &) = delete;
    sglNlsHelp & operator=(sglNlsHelp const &) = delete;

    /// Where the language files lie; adopts the language of the settings or the environment, if there is one.
    void locale_dir(sdbSearchPath path);

    void set_main_language(utString const & language); ///< messages and toolkit
    void set_nls_language(utString const & language);  ///< messages; remakes translator and formatter

    /// The language of the toolkit's own texts, after that of the messages: theirs, or theirs without its
    /// country, or "English", the first that the toolkit and the machine have. Without a display no text of
    /// the toolkit is ever shown, and the language is "English" without an attempt, for each takes longer
    /// than the rest of a start.
    void set_wx_language();

    /// Cuts the country off a language name such as en_GB or pt-br. Returns 0, changing nothing, when there
    /// is none.
    int strip_country(utString & language) const;

    /// The text of `format` in the user's language with its arguments filled in.
    template <class... Arguments>
    utString gsprintf(char const * domain, char const * format, Arguments const &... arguments) const
    {
        return vgsprintf(domain, format, ut_text_arguments(arguments...));
    }
    utString vgsprintf(char const * domain, char const * format, utTextArguments const & arguments) const;

    /// A message stream onto `displayer`, which is not owned; the caller owns the result.
    vmrabsOutput * make_new_connector(vmrnlsDisplayer * displayer) const;

    /// Numbers as the user writes them: the default form, then that of the locale. `error` becomes non-zero
    /// when the text is no number and keeps its value otherwise.
    int string_to_int(utString text, int & error) const;
    double string_to_double(utString text, int & error) const;

    void set_translating(int translating) { m_translating = translating; }
    int translating() const { return m_translating; }

    utString const & requested_language() const { return m_requested_language; }
    utString const & used_language() const { return m_used_language; }
    utString const & wxwidgets_language() const { return m_toolkit_language; }
    utString iso_locale() const { return m_iso_locale; }

    vmrnlsTranslatorAndFormatter * translator_and_formatter() { return m_translator_and_formatter.get(); }
    void update_translator_and_formatter();

protected:
    /// Sets the toolkit's locale. Returns 0 when the toolkit does not know the language or its catalogues are
    /// missing.
    int init_wx_language(wxLocale * locale, utString const & language);
    /// The place for a guard against a change of language while a translation runs; it guards nothing.
    void check_not_translating(char const *) const {}

private:
    std::vector<std::string> language_folders() const;

    /// Deletes a toolkit locale without the toolkit putting back the C library's locale of the time before
    /// it.
    struct LocaleDeleter {
        void operator()(wxLocale * locale) const;
    };

    std::unique_ptr<vmrnlsTranslatorAndFormatter> m_translator_and_formatter;
    std::unique_ptr<vmrnlsTranslator> m_translator;
    std::unique_ptr<vmrnlsFormatter> m_formatter;
    std::unique_ptr<vmrnlsParserDefaultThenLocale> m_parser;
    utString m_requested_language;
    utString m_used_language;
    utString m_toolkit_language;
    sdbSearchPath m_locale_path;
    std::unique_ptr<wxLocale, LocaleDeleter> m_locale;
    std::atomic<int> m_translating = 0; // cleared on the polling thread of a command-line run
    utString m_iso_locale;
};

/// The one sglNlsHelp, made on first use.
sglNlsHelp * getNlsHelp();
