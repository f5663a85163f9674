#include "compare/cmpTexts.h"

#include "nls/nlsDomainManager.h"
#include "nls/vmrnlsFormatterSimple.h"
#include "nls/vmrnlsTranslatorWithDatabases.h"

namespace {

// The texts of the host stand in the catalogues with the end of their line, those of the engine as they are
// written.
constexpr char const * host_domain = "vmrhost";

} // namespace

cmpTexts::cmpTexts(std::vector<std::string> const & folders)
    : m_translator(std::make_unique<vmrnlsTranslatorWithDatabases>(folders)),
      m_formatter(std::make_unique<vmrnlsFormatterSimple>("."))
{
    nlsDomainManager::language_folders(folders);
    auto const language = nlsDomainManager::env_language(nlsLangStartUp).name();
    nlsDomainManager::language(language.empty() ? nlsDomainManager::no_translation_language() : language);
}

std::string cmpTexts::operator()(s2sMessage const & message) const
{
    return of(s2s_message_domain(), message.key, message.arguments);
}

std::string cmpTexts::of(utString const & domain, utString const & key,
                         utTextArguments const & arguments) const
{
    auto whole = key;
    if (domain.view() == host_domain && !key.view().ends_with('\n'))
        whole += "\n";
    auto text = m_formatter->format(m_translator->translate(domain.c_str(), whole.c_str()), arguments);
    text.remove_trailing_chars("\n");
    return text.str();
}
