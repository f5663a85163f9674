#include "nls/nlsDomainManager.h"

#include "nls/nls_find_language.h"

#include <algorithm>
#include <atomic>
#include <clocale>
#include <cstdlib>
#include <mutex>
#include <string_view>

utString nlsDomainManager::the_env_language;
int nlsDomainManager::the_env_type = 0;
int nlsDomainManager::the_regional_settings_flag = 0;

namespace {

struct State {
    std::mutex mutex;
    utString language;
    std::atomic<unsigned> generation = 1;
    std::unique_ptr<nlsApplicationSettings> settings;
    std::vector<std::string> folders;
};

State & state()
{
    static State the_state;
    return the_state;
}

std::string_view environment(char const * name)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing here sets the environment
    char const * value = std::getenv(name);
    return value ? value : "";
}

/// A language that the user asks for, and what the_env_type is for it.
struct Wish {
    nlsLanguage language;
    int type;
};

void add_wishes_of_environment(std::vector<Wish> & wishes)
{
    std::string_view locale;
    for (char const * name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = environment(name);
        if (!locale.empty())
            break;
    }
    // Who asks for the "C" locale wants plain texts, whatever LANGUAGE says; gettext decides likewise.
    if (locale == "C" || locale == "POSIX")
        return;
    auto list = environment("LANGUAGE");
    if (list.empty())
        list = locale;
    while (!list.empty()) {
        auto const end = std::min(list.find(':'), list.size());
        wishes.push_back({nlsLanguage(utString(list.substr(0, end))), 2});
        list.remove_prefix(std::min(end + 1, list.size()));
    }
}

std::vector<Wish> wishes_of_user()
{
    std::vector<Wish> wishes;
    nlsLanguage chosen;
    auto const settings = nlsDomainManager::application_settings();
    if (settings && settings->get_display_language(chosen).ok())
        wishes.push_back({chosen, 1});
    add_wishes_of_environment(wishes);
    std::erase_if(wishes, [](Wish const & wish) { return wish.language.empty(); });
    return wishes;
}

/// English needs no files: it is what the program says without any.
bool can_be_had(nlsLanguage const & language)
{
    auto const & folders = state().folders;
    return folders.empty() || language.code() == utString("en") ||
           !nls_find_language(folders, language.name().view()).empty() ||
           !nls_find_language(folders, language.code().view()).empty();
}

nlsLanguage start_up_language()
{
    auto const wishes = wishes_of_user();
    auto best = std::find_if(wishes.begin(), wishes.end(),
                             [](Wish const & wish) { return can_be_had(wish.language); });
    if (best == wishes.end())
        best = wishes.begin();
    Wish const found = wishes.empty() ? Wish{nlsLanguage(), 0} : *best;
    nlsDomainManager::the_env_type = found.type;
    nlsDomainManager::the_env_language = found.language.name();
    nlsDomainManager::the_regional_settings_flag = found.type != 0;
    return found.language;
}

nlsLanguage fall_back_language()
{
    auto const current = nlsDomainManager::language();
    auto const language = current.empty() ? start_up_language() : nlsLanguage(current);
    return language.country().empty() ? nlsLanguage() : language.without_country();
}

} // namespace

void nlsDomainManager::set_application_settings(std::unique_ptr<nlsApplicationSettings> settings)
{
    state().settings = std::move(settings);
}

nlsApplicationSettings * nlsDomainManager::application_settings()
{
    return state().settings.get();
}

void nlsDomainManager::language_folders(std::vector<std::string> folders)
{
    state().folders = std::move(folders);
}

void nlsDomainManager::language(utString const & name)
{
    std::lock_guard const lock(state().mutex);
    state().language = name;
    ++state().generation;
}

utString nlsDomainManager::language()
{
    std::lock_guard const lock(state().mutex);
    return state().language;
}

unsigned nlsDomainManager::language_generation()
{
    return state().generation;
}

nlsLanguage nlsDomainManager::env_language(nlsLang which)
{
    switch (which) {
    case nlsLangStartUp:
        return start_up_language();
    case nlsLangFallBack:
        return fall_back_language();
    }
    return {};
}

utString nlsDomainManager::no_translation_language()
{
    return "English";
}

utString nlsDomainManager::get_iso_locale(utString const & name)
{
    return nlsLanguage(name).iso_name();
}

void nlsDomainManager::numeric_translation(int on)
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): the header says when this may be called
    std::setlocale(LC_NUMERIC, on ? "" : "C");
}
