#include "nls/vmrnlsTranslatorWithDatabases.h"

#include "nls/nlsCatalogues.h"
#include "nls/nlsDomainManager.h"
#include "nls/vmrnlsConversion.h"
#include "nls/vmrnlsKey.h"

vmrnlsTranslatorWithDatabases::vmrnlsTranslatorWithDatabases(utString const & search_path)
{
    auto rest = search_path;
    utString folder;
    while (rest.extract_string(":", folder))
        m_folders.push_back(folder.str());
}

vmrnlsTranslatorWithDatabases::vmrnlsTranslatorWithDatabases(std::vector<std::string> folders)
    : m_folders(std::move(folders))
{
}

vmrnlsTranslatorWithDatabases::~vmrnlsTranslatorWithDatabases() = default;

std::shared_ptr<nlsCatalogues> vmrnlsTranslatorWithDatabases::current_catalogues() const
{
    std::lock_guard const lock(m_mutex);
    auto const generation = nlsDomainManager::language_generation();
    if (generation != m_generation) {
        nlsLanguage const language(nlsDomainManager::language());
        m_catalogues =
            language.is_untranslated() ? nullptr : std::make_shared<nlsCatalogues>(m_folders, language);
        m_generation = generation;
    }
    return m_catalogues;
}

utString vmrnlsTranslatorWithDatabases::translate(char const * domain, char const * key) const
{
    vmrnlsKey const parts(key ? key : "");
    std::string_view const name = domain ? domain : "";
    // The empty text stands for the header of a catalogue.
    if (parts.text.empty() || name == "DO_NOT_TRANSLATE")
        return parts.text;
    auto const catalogues = current_catalogues();
    if (!catalogues)
        return parts.text;
    auto const translation = catalogues->find(name, parts.context, parts.text);
    return !translation.empty() && vmrnls_same_arguments(parts.text, translation) ? translation : parts.text;
}
