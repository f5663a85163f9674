#include "sglNlsHelp.h"

#include "sglApp.h"

#include "nls/nlsDomainManager.h"
#include "nls/nlsUtils.h"
#include "nls/nls_find_language.h"
#include "nls/vmrnlsConnector.h"
#include "nls/vmrnlsFormatterSimple.h"
#include "nls/vmrnlsLocaleNumbers.h"
#include "nls/vmrnlsTranslatorDefault.h"
#include "nls/vmrnlsTranslatorWithDatabases.h"
#include "wxt/wxtStringConverter.h"

#include <cassert>
#include <clocale>
#include <filesystem>
#include <string>
#include <wx/intl.h>
#include <wx/log.h>
#include <wx/translation.h>

namespace {

bool exists_already = false;

/// The text functions of the program assume the C locale for characters and order, whatever a library has
/// set.
void put_back_c_character_locale()
{
    std::setlocale(LC_CTYPE, "C");
    std::setlocale(LC_COLLATE, "C");
}

} // namespace

void sglNlsHelp::LocaleDeleter::operator()(wxLocale * locale) const
{
    char const * const current = std::setlocale(LC_ALL, nullptr);
    std::string const kept = current ? current : "C";
    delete locale;
    std::setlocale(LC_ALL, kept.c_str());
}

sglNlsHelp::sglNlsHelp()
    : m_translator(std::make_unique<vmrnlsTranslatorDefault>()),
      m_formatter(std::make_unique<vmrnlsFormatterSimple>(".")),
      m_parser(std::make_unique<vmrnlsParserDefaultThenLocale>())
{
    assert(!exists_already && "An sglNlsHelp already exists");
    exists_already = true;
    update_translator_and_formatter();
}

sglNlsHelp::~sglNlsHelp()
{
    exists_already = false;
}

sglNlsHelp * getNlsHelp()
{
    static sglNlsHelp help;
    return &help;
}

void sglNlsHelp::locale_dir(sdbSearchPath path)
{
    m_locale_path = std::move(path);
    nlsDomainManager::language_folders(language_folders());
    utString const language = nlsDomainManager::env_language(nlsLangStartUp).name();
    if (!language.empty())
        set_nls_language(language);
}

void sglNlsHelp::set_main_language(utString const & language)
{
    set_nls_language(language);
    set_wx_language();
}

std::vector<std::string> sglNlsHelp::language_folders() const
{
    std::vector<std::string> folders;
    for (auto const & directory : m_locale_path.directories())
        folders.push_back(directory.utf8());
    return folders;
}

void sglNlsHelp::set_nls_language(utString const & language)
{
    auto const folders = language_folders();
    m_translator = std::make_unique<vmrnlsTranslatorWithDatabases>(folders);
    nlsDomainManager::language(language);
    m_requested_language = language;

    std::filesystem::path found = nls_find_language(folders, language.view());
    // The translator takes a country's language for that of the country by itself.
    if (found.empty())
        found = nls_find_language(folders, nlsDomainManager::env_language(nlsLangFallBack).name().view());
    if (found.empty()) {
        nlsDomainManager::the_regional_settings_flag = 0;
        nlsDomainManager::the_env_language = "";
        nlsDomainManager::the_env_type = 0;
        nlsDomainManager::language(nlsDomainManager::no_translation_language());
    }
    m_used_language = found.empty() ? utString("English") : utString(found.stem().string());

    // The first translation loads the databases: now, and not later on the worker thread.
    m_translator->translate("vmrgrlib",
                            "This string has no translation, it is only to wake up the nls system");

    m_iso_locale = nlsDomainManager::get_iso_locale(m_used_language);
    nlsDomainManager::numeric_translation(1);
    m_formatter =
        std::make_unique<vmrnlsFormatterSimple>(std::string(1, nlsUtils::lookup_decimal_point()).c_str());
    update_translator_and_formatter();
    nlsDomainManager::numeric_translation(0);
    put_back_c_character_locale();
}

void sglNlsHelp::set_wx_language()
{
    // A locale object of the toolkit takes one attempt only, and the old one has to be gone before the new
    // one is made: each puts back what it found.
    auto const attempt = [this] {
        m_locale.reset();
        m_locale.reset(new wxLocale);
        return init_wx_language(m_locale.get(), m_toolkit_language) != 0;
    };
    m_toolkit_language = m_used_language;
    // Without windows no text of the toolkit is ever shown, and asking it for a language takes longer than
    // the rest of a start: on a machine that lacks the locale it tries those of all countries.
    if (!sglApp::app().has_display()) {
        m_toolkit_language = "English";
    } else if (!attempt() && !(strip_country(m_toolkit_language) && attempt())) {
        m_toolkit_language = "English";
        attempt();
    }
    vmrnlsLocaleNumbers::save();
    nlsDomainManager::numeric_translation(0);
    put_back_c_character_locale();
}

int sglNlsHelp::init_wx_language(wxLocale * locale, utString const & language)
{
    wxLanguageInfo const * const info = wxLocale::FindLanguageInfo(wxtStringConverter::to_wx(language));
    if (!info)
        return 0;
    utString const folder = sglApp::app().file_locator().schema_dir(sdbHRKDirectory::toolkit).find_dir("lib");
    if (folder.invalid())
        return 0;
    wxFileTranslationsLoader::AddCatalogLookupPathPrefix(wxtStringConverter::to_wx(folder + "/locale"));
    // The toolkit complains in a box when the machine lacks the locale; the result says the same.
    wxLogNull const quiet;
    return locale->Init(info->Language, wxLOCALE_LOAD_DEFAULT) ? 1 : 0;
}

int sglNlsHelp::strip_country(utString & language) const
{
    for (int i = 1; i < language.length(); ++i) {
        if (language[i] == '_' || language[i] == '-') {
            language = language.substring(0, i);
            return 1;
        }
    }
    return 0;
}

utString sglNlsHelp::vgsprintf(char const * domain, char const * format,
                               utTextArguments const & arguments) const
{
    return m_translator_and_formatter->vtsprintf(domain, format, arguments);
}

vmrabsOutput * sglNlsHelp::make_new_connector(vmrnlsDisplayer * displayer) const
{
    return new vmrnlsConnector(m_translator.get(), m_formatter.get(), displayer);
}

int sglNlsHelp::string_to_int(utString text, int & error) const
{
    return m_parser->parse_int(text, error);
}

double sglNlsHelp::string_to_double(utString text, int & error) const
{
    return m_parser->parse_double(text, error);
}

void sglNlsHelp::update_translator_and_formatter()
{
    m_translator_and_formatter.reset();
    m_translator_and_formatter =
        std::make_unique<vmrnlsTranslatorAndFormatter>(m_translator.get(), m_formatter.get());
}
