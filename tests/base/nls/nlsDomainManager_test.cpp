#include "nls/nlsDomainManager.h"

#include <gtest/gtest.h>

#include "Surroundings.h"
#include "kit/kitTempFolder.h"
#include "nls/nlsUtils.h"

namespace {

class StoredLanguage : public nlsApplicationSettings {
public:
    explicit StoredLanguage(char const * name, int code = 0) : m_language(name), m_code(code) {}

    nlsErrorData set_display_language(nlsLanguage const & language) override
    {
        m_language = language;
        return nlsErrorData(m_code);
    }
    nlsErrorData get_display_language(nlsLanguage & language) override
    {
        language = m_language;
        return nlsErrorData(m_code);
    }

private:
    nlsLanguage m_language;
    int m_code;
};

utString start_up_language()
{
    return nlsDomainManager::env_language(1).name();
}

utString fall_back()
{
    return nlsDomainManager::env_language(3).name();
}

} // namespace

TEST(DomainManager, PrefersTheStoredLanguageToTheEnvironment)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_FR.UTF-8");
    nlsDomainManager::set_application_settings(std::make_unique<StoredLanguage>("pt-BR"));
    EXPECT_EQ(start_up_language(), utString("pt_BR"));
    EXPECT_EQ(nlsDomainManager::the_env_language, utString("pt_BR"));
    EXPECT_EQ(nlsDomainManager::the_env_type, 1);
    EXPECT_NE(nlsDomainManager::the_regional_settings_flag, 0);
}

TEST(DomainManager, TakesTheEnvironmentWhenNothingIsStored)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_FR.UTF-8");
    nlsDomainManager::set_application_settings(std::make_unique<StoredLanguage>(""));
    EXPECT_EQ(start_up_language(), utString("fr_FR"));
    EXPECT_EQ(nlsDomainManager::the_env_type, 2);
}

TEST(DomainManager, TakesTheEnvironmentWhenTheSettingsCannotBeRead)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_FR.UTF-8");
    nlsDomainManager::set_application_settings(std::make_unique<StoredLanguage>("de", 1));
    EXPECT_EQ(start_up_language(), utString("fr_FR"));
}

TEST(DomainManager, ReadsTheVariablesInTheOrderOfTheCLibrary)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_FR.UTF-8");
    surroundings.set("LC_MESSAGES", "it_IT.UTF-8");
    EXPECT_EQ(start_up_language(), utString("it_IT"));
    surroundings.set("LC_ALL", "es_ES.UTF-8");
    EXPECT_EQ(start_up_language(), utString("es_ES"));
    surroundings.set("LANGUAGE", "de_AT:fr");
    EXPECT_EQ(start_up_language(), utString("de_AT"));
}

TEST(DomainManager, PrefersAWantedLanguageThatHasFiles)
{
    Surroundings surroundings;
    kitTempFolder const folder;
    folder.write("de/LC_MESSAGES/any.mo", "");
    folder.write("fr/LC_MESSAGES/any.mo", "");
    nlsDomainManager::language_folders({folder / "none", folder.path().string()});
    surroundings.set("LANG", "fr_FR.UTF-8");
    surroundings.set("LANGUAGE", "zz:de_AT:fr");
    EXPECT_EQ(start_up_language(), utString("de_AT"));
    EXPECT_EQ(nlsDomainManager::the_env_language, utString("de_AT"));

    nlsDomainManager::set_application_settings(std::make_unique<StoredLanguage>("tlh"));
    EXPECT_EQ(start_up_language(), utString("de_AT"));
    EXPECT_EQ(nlsDomainManager::the_env_type, 2);
    nlsDomainManager::set_application_settings(std::make_unique<StoredLanguage>("fr"));
    EXPECT_EQ(start_up_language(), utString("fr"));
    EXPECT_EQ(nlsDomainManager::the_env_type, 1);
}

TEST(DomainManager, NeedsNoFilesForEnglish)
{
    Surroundings surroundings;
    kitTempFolder const folder;
    folder.write("de/LC_MESSAGES/any.mo", "");
    nlsDomainManager::language_folders({folder.path().string()});
    surroundings.set("LANGUAGE", "zz:en_GB:de");
    EXPECT_EQ(start_up_language(), utString("en_GB"));
    nlsDomainManager::set_application_settings(std::make_unique<StoredLanguage>("English"));
    surroundings.set("LANGUAGE", "de");
    EXPECT_EQ(start_up_language(), utString("en"));
}

TEST(DomainManager, StaysWithTheFirstLanguageWhenNoneHasFiles)
{
    Surroundings surroundings;
    kitTempFolder const folder;
    folder.write("de/LC_MESSAGES/any.mo", "");
    nlsDomainManager::language_folders({folder.path().string()});
    surroundings.set("LANGUAGE", ":de/LC_MESSAGES:/etc:..:zz");
    surroundings.set("LANG", "de_DE.UTF-8");
    EXPECT_EQ(start_up_language(), utString("de/LC_MESSAGES"));
    EXPECT_EQ(nlsDomainManager::the_env_type, 2);
}

TEST(DomainManager, PassesOverAnEmptyVariable)
{
    Surroundings surroundings;
    surroundings.set("LC_ALL", "");
    surroundings.set("LANGUAGE", "");
    surroundings.set("LANG", "de_DE.UTF-8");
    EXPECT_EQ(start_up_language(), utString("de_DE"));
}

TEST(DomainManager, LeavesTextsAloneForWhoAsksForThePlainLocale)
{
    Surroundings surroundings;
    surroundings.set("LC_ALL", "C");
    surroundings.set("LANGUAGE", "de");
    EXPECT_TRUE(start_up_language().empty());
    EXPECT_EQ(nlsDomainManager::the_env_type, 0);
    EXPECT_EQ(nlsDomainManager::the_regional_settings_flag, 0);
}

TEST(DomainManager, KnowsNoLanguageInABareEnvironment)
{
    Surroundings surroundings;
    EXPECT_TRUE(nlsDomainManager::env_language(nlsLangStartUp).empty());
    EXPECT_TRUE(nlsDomainManager::env_language(nlsLangFallBack).empty());
    surroundings.set("LANG", "C.UTF-8");
    EXPECT_TRUE(nlsDomainManager::env_language(nlsLangStartUp).empty());
    surroundings.set("LANGUAGE", "de");
    EXPECT_EQ(start_up_language(), utString("de"));
}

TEST(DomainManager, FallsBackToTheLanguageInForceWithoutItsCountry)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_FR.UTF-8");
    nlsDomainManager::language("de_AT");
    EXPECT_EQ(fall_back(), utString("de"));
}

TEST(DomainManager, HasNoFallBackForALanguageWithoutACountry)
{
    Surroundings surroundings;
    surroundings.set("LANG", "de_DE.UTF-8");
    nlsDomainManager::language("en");
    EXPECT_TRUE(fall_back().empty());
}

TEST(DomainManager, FallsBackFromTheStartUpLanguageWhileNoneIsInForce)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_CA.UTF-8");
    EXPECT_EQ(fall_back(), utString("fr"));
}

TEST(DomainManager, GivesNothingForAnUnknownKindOfLanguage)
{
    Surroundings surroundings;
    surroundings.set("LANG", "fr_CA.UTF-8");
    EXPECT_TRUE(nlsDomainManager::env_language(2).empty());
}

TEST(DomainManager, TellsThatTheLanguageHasChanged)
{
    Surroundings const surroundings;
    auto const before = nlsDomainManager::language_generation();
    nlsDomainManager::language("de");
    EXPECT_NE(nlsDomainManager::language_generation(), before);
    EXPECT_EQ(nlsDomainManager::language(), utString("de"));
}

TEST(DomainManager, GivesIsoNames)
{
    EXPECT_EQ(nlsDomainManager::get_iso_locale("pt_BR"), utString("pt-BR"));
    EXPECT_EQ(nlsDomainManager::get_iso_locale(nlsDomainManager::no_translation_language()), utString("en"));
}

TEST(DomainManager, SwitchesNumbersBetweenTheUsersLocaleAndThePlainOne)
{
    Surroundings surroundings;
    surroundings.use_decimal_comma();
    EXPECT_EQ(nlsUtils::lookup_decimal_point(), '.');
    nlsDomainManager::numeric_translation(1);
    EXPECT_EQ(nlsUtils::lookup_decimal_point(), ',');
    nlsDomainManager::numeric_translation(0);
    EXPECT_EQ(nlsUtils::lookup_decimal_point(), '.');
}

TEST(DomainManager, KeepsPlainNumbersWhenTheUsersLocaleIsNotInstalled)
{
    Surroundings surroundings;
    surroundings.set("LC_ALL", "xx_XX.UTF-8");
    nlsDomainManager::numeric_translation(1);
    EXPECT_EQ(nlsUtils::lookup_decimal_point(), '.');
}
