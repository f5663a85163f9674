#pragma once

#include <map>
#include <memory>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <vector>

#include "nls/nlsLanguage.h"

/// The message catalogues of one language, one for each domain, opened as they are asked for and kept. For
/// de_AT a catalogue of de_AT goes before one of de.
class nlsCatalogues {
public:
    nlsCatalogues(std::vector<std::string> folders, nlsLanguage language);
    ~nlsCatalogues();

    /// The translation of a text, empty when there is none. It lives as long as this object. Any thread.
    std::string_view find(std::string_view domain, std::string_view context, std::string_view text);

private:
    class Catalogue;
    Catalogue & catalogue(std::string_view domain);

    std::vector<std::string> m_folders;
    nlsLanguage m_language;
    std::shared_mutex m_mutex;
    std::map<std::string, std::unique_ptr<Catalogue>, std::less<>> m_catalogues;
};
