#include "nls/nlsCatalogues.h"

#include <exception>
#include <fstream>
#include <iterator>
#include <locale>
#include <mutex>

#include <boost/locale/gnu_gettext.hpp>
#include <boost/locale/message.hpp>

namespace catalogues = boost::locale::gnu_gettext;
using Messages = boost::locale::message_format<char>;

namespace {

std::vector<char> file_contents(std::string const & name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

class nlsCatalogues::Catalogue {
public:
    Catalogue(std::vector<std::string> const & folders, nlsLanguage const & language,
              std::string const & domain)
    {
        catalogues::messages_info info;
        info.language = language.code().str();
        info.country = language.country().str();
        info.encoding = "UTF-8";
        info.paths = folders;
        info.domains.emplace_back(domain);
        info.callback = [](std::string const & name, std::string const &) { return file_contents(name); };
        try {
            auto * const messages = catalogues::create_messages_facet<char>(info);
            m_owner = std::locale(std::locale::classic(), messages);
            m_messages = messages;
            m_domain = messages->domain(domain);
        } catch (std::exception const &) {
            m_messages = nullptr; // not a catalogue; its texts stay English
        }
    }

    std::string_view find(std::string const & context, std::string const & text) const
    {
        if (!m_messages)
            return {};
        try {
            char const * const found =
                m_messages->get(m_domain, context.empty() ? nullptr : context.c_str(), text.c_str());
            return found ? found : std::string_view();
        } catch (std::exception const &) {
            return {}; // its tables point outside the file
        }
    }

private:
    std::locale m_owner;
    Messages const * m_messages = nullptr;
    int m_domain = 0;
};

nlsCatalogues::nlsCatalogues(std::vector<std::string> folders, nlsLanguage language)
    : m_folders(std::move(folders)), m_language(std::move(language))
{
}

nlsCatalogues::~nlsCatalogues() = default;

nlsCatalogues::Catalogue const & nlsCatalogues::catalogue(std::string_view domain)
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
    return catalogue(domain).find(std::string(context), std::string(text));
}
