#pragma once

#include <clocale>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "nls/nlsDomainManager.h"

/// The environment, the locale and the language of the process as a test wants them; put back at its end.
class Surroundings {
public:
    Surroundings()
    {
        for (char const * name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LANG", "LOCPATH"}) {
            char const * value = std::getenv(name);
            m_before[name] = value ? std::optional<std::string>(value) : std::nullopt;
            unsetenv(name);
        }
    }
    ~Surroundings()
    {
        for (auto const & [name, value] : m_before) {
            if (value)
                setenv(name.c_str(), value->c_str(), 1);
            else
                unsetenv(name.c_str());
        }
        std::setlocale(LC_ALL, "C");
        nlsDomainManager::language("");
        nlsDomainManager::language_folders({});
        nlsDomainManager::set_application_settings(nullptr);
    }
    Surroundings(Surroundings const &) = delete;
    Surroundings & operator=(Surroundings const &) = delete;

    void set(char const * name, char const * value) { setenv(name, value, 1); }

    /// Numbers become those of a locale: de_DE, fr_FR or ja_JP.
    void use_numbers_of(std::string const & locale)
    {
        set("LOCPATH", TEST_LOCPATH);
        set("LC_NUMERIC", (locale + ".UTF-8").c_str());
    }
    /// The user's locale becomes one with a decimal comma.
    void use_decimal_comma() { use_numbers_of("de_DE"); }

private:
    std::map<std::string, std::optional<std::string>> m_before;
};
