#include "nls/nlsDomainManager.h"

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

nlsLanguage language_of_environment()
{
    std::string_view locale;
    for (char const * name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = environment(name);
        if (!locale.empty())
            break;
    }
    // Who asks for the "C" locale wants plain texts, whatever LANGUAGE says; gettext decides likewise.
    if (locale == "C" || locale == "POSIX")
        return {};
    auto list = environment("LANGUAGE");
    list = list.substr(0, list.find(':'));
    return nlsLanguage(utString(list.empty() ? locale : list));
}

nlsLanguage start_up_language()
{
    nlsLanguage chosen;
    auto const settings = nlsDomainManager::application_settings();
    if (settings && settings->get_display_language(chosen).ok() && !chosen.empty()) {
        nlsDomainManager::the_env_type = 1;
    } else {
        chosen = language_of_environment();
        nlsDomainManager::the_env_type = chosen.empty() ? 0 : 2;
    }
    nlsDomainManager::the_env_language = chosen.name();
    nlsDomainManager::the_regional_settings_flag = nlsDomainManager::the_env_type != 0;
    return chosen;
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
