#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "nls/vmrnlsTranslator.h"

class nlsCatalogues;

/// The translator that reads compiled gettext catalogues, <folder>/<language>/LC_MESSAGES/<domain>.mo, in
/// which the context of a key is the message context. It follows the language of nlsDomainManager and opens a
/// catalogue when its first text is asked for; for English it opens none. A translation whose conversions do
/// not fit the arguments of its key is passed over, and so is a damaged catalogue. Texts of the domain
/// "DO_NOT_TRANSLATE" stay as they are.
class vmrnlsTranslatorWithDatabases : public vmrnlsTranslator {
public:
    explicit vmrnlsTranslatorWithDatabases(utString const & search_path); ///< folders, separated by ":"
    explicit vmrnlsTranslatorWithDatabases(
        std::vector<std::string> folders); ///< which may have a ":" in them
    ~vmrnlsTranslatorWithDatabases() override;

    utString translate(char const * domain, char const * key) const override;

private:
    std::shared_ptr<nlsCatalogues> current_catalogues() const;

    std::vector<std::string> m_folders;
    mutable std::mutex m_mutex;
    mutable unsigned m_generation = 0;
    mutable std::shared_ptr<nlsCatalogues> m_catalogues; ///< null for English
};
