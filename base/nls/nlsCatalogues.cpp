#include "nls/nlsCatalogues.h"

#include "wxt/wxtMessageCatalogue.h"

#include <mutex>

/// The files of one domain, the more particular ones first, and what has been found in them.
class nlsCatalogues::Catalogue {
public:
    Catalogue(std::vector<std::string> const & folders, nlsLanguage const & language,
              std::string const & domain)
    {
        std::string const general = language.code().str();
        if (!language.country().empty())
            open(folders, general + '_' + language.country().str(), domain);
        open(folders, general, domain);
    }

    std::string_view find(std::string_view context, std::string_view text)
    {
        if (m_files.empty())
            return {};
        std::string key(context);
        (key += '\0') += text;
        {
            std::shared_lock const lock(m_mutex);
            if (auto const known = m_found.find(key); known != m_found.end())
                return known->second;
        }
        for (auto const & file : m_files)
            if (auto found = file->find(context, text)) {
                std::unique_lock const lock(m_mutex);
                return m_found.try_emplace(std::move(key), std::move(*found)).first->second;
            }
        return {};
    }

private:
    void open(std::vector<std::string> const & folders, std::string const & language,
              std::string const & domain)
    {
        for (auto const & folder : folders)
            if (auto file =
                    wxtMessageCatalogue::open(folder + '/' + language + "/LC_MESSAGES/" + domain + ".mo")) {
                m_files.push_back(std::move(file));
                return;
            }
    }

    std::vector<std::unique_ptr<wxtMessageCatalogue>> m_files;
    std::shared_mutex m_mutex;
    std::map<std::string, std::string, std::less<>> m_found;
};

nlsCatalogues::nlsCatalogues(std::vector<std::string> folders, nlsLanguage language)
    : m_folders(std::move(folders)), m_language(std::move(language))
{
}

nlsCatalogues::~nlsCatalogues() = default;

nlsCatalogues::Catalogue & nlsCatalogues::catalogue(std::string_view domain)
{
    {
        std::shared_lock const lock(m_mutex);
        auto const found = m_catalogues.find(domain);
        if (found != m_catalogues.end())
            return *found->second;
    }
    std::unique_lock const lock(m_mutex);
    auto & entry = m_catalogues[std::string(domain)];
    if (!entry)
        entry = std::make_unique<Catalogue>(m_folders, m_language, std::string(domain));
    return *entry;
}

std::string_view nlsCatalogues::find(std::string_view domain, std::string_view context, std::string_view text)
{
    return catalogue(domain).find(context, text);
}
