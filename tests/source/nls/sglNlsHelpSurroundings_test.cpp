// The language of the program on machines with locales, catalogues and settings of a test's making.

#include "sglNlsHelp.h"

#include "sglNumberLocaliser.h"

#include "base/nls/Surroundings.h"
#include "kit/kitAppTest.h"

#include <clocale>
#include <wx/intl.h>
#include <wx/log.h>

namespace {

/// A start on a machine that has the locales de_DE, fr_FR and ja_JP, from a bare environment.
struct LanguageOfUser : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        unsetenv("LC_ALL");
        surroundings.set("LOCPATH", TEST_LOCPATH);
        setenv("HOME", (folder() / "home").c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
        before = wxLog::SetActiveTarget(&said);
    }
    void TearDown() override
    {
        wxLog::SetActiveTarget(before);
        EXPECT_EQ(said.GetBuffer(), "");
        // The object stays for the tests to come.
        unsetenv("LC_NUMERIC");
        app().use_display(false);
        getNlsHelp()->set_main_language("English");
        kitAppTest::TearDown();
    }

    /// Gives a language the texts of the tests.
    std::string install_texts(std::string const & language, std::string const & name = "sample.mo")
    {
        return install("share/vmr/locale/" + language + "/LC_MESSAGES/" + name, texts());
    }
    /// Gives the toolkit a catalogue of its own for the language, in the installation.
    void install_texts_of_toolkit(std::string const & language)
    {
        install("share/vmr/lib/locale/" + language + "/LC_MESSAGES/wxstd-3.2.mo", texts());
    }
    static std::string texts() { return kit_read_file(TEST_LOCALE_FOLDER "/de/LC_MESSAGES/sample.mo"); }
    static utString opened() { return getNlsHelp()->gsprintf("sample", "menu::Open"); }

    Surroundings surroundings;
    wxLogBuffer said; // shows what it got at its end, and here it gets nothing
    wxLog * before = nullptr;
};

/// With windows, so that the toolkit is set to a language too.
struct LanguageOfToolkit : LanguageOfUser {
    void SetUp() override
    {
        LanguageOfUser::SetUp();
        start();
        app().use_display(true);
    }
};

} // namespace

TEST_F(LanguageOfToolkit, IsThatOfTheMessagesAndItsTextsComeFromTheInstallation)
{
    install_texts("de");
    install_texts_of_toolkit("de");
    getNlsHelp()->set_main_language("de");
    EXPECT_EQ(getNlsHelp()->wxwidgets_language(), utString("de"));
    EXPECT_EQ(wxGetTranslation("Open").utf8_string(), "Auf");
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
    EXPECT_STREQ(std::setlocale(LC_COLLATE, nullptr), "C");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST_F(LanguageOfToolkit, LosesACountryThatTheToolkitDoesNotKnow)
{
    install_texts("de_ZZ");
    install_texts_of_toolkit("de");
    getNlsHelp()->set_main_language("de_ZZ");
    EXPECT_EQ(getNlsHelp()->used_language(), utString("de_ZZ"));
    EXPECT_EQ(getNlsHelp()->wxwidgets_language(), utString("de"));
    EXPECT_EQ(wxGetTranslation("Open").utf8_string(), "Auf");
}

TEST_F(LanguageOfToolkit, IsEnglishAfterTwoTries)
{
    install_texts("en_GB");
    install_texts_of_toolkit("de");
    getNlsHelp()->set_main_language("en_GB");
    EXPECT_EQ(getNlsHelp()->used_language(), utString("en_GB"));
    EXPECT_EQ(getNlsHelp()->wxwidgets_language(), utString("English"));
    EXPECT_EQ(wxGetTranslation("Open").utf8_string(), "Open");
}

TEST_F(LanguageOfToolkit, ChangesWithThatOfTheMessages)
{
    install_texts("de");
    install_texts("fr");
    install_texts_of_toolkit("de");
    getNlsHelp()->set_main_language("de");
    getNlsHelp()->set_main_language("fr");
    EXPECT_EQ(getNlsHelp()->wxwidgets_language(), utString("fr"));
    EXPECT_EQ(wxGetTranslation("Open").utf8_string(), "Open");
    getNlsHelp()->set_main_language("tlh");
    EXPECT_EQ(getNlsHelp()->wxwidgets_language(), utString("English"));
}

TEST_F(LanguageOfUser, IsTheOneStoredInTheConfigurationFile)
{
    install_texts("pt_BR");
    surroundings.set("LANG", "de_DE.UTF-8");
    install_texts("de");
    folder().write("home/.config/Tester.conf", "[7.2/Language]\nCurrentLanguage=pt-br\n");
    start();
    EXPECT_EQ(getNlsHelp()->requested_language(), utString("pt_BR"));
    EXPECT_EQ(getNlsHelp()->used_language(), utString("pt_BR"));
    EXPECT_EQ(getNlsHelp()->iso_locale(), utString("pt-BR"));
    EXPECT_EQ(opened(), utString("Öffnen"));
    EXPECT_EQ(nlsDomainManager::the_env_type, 1);
}

TEST_F(LanguageOfUser, IsThatOfTheEnvironmentWhenTheStoredOneHasNoFiles)
{
    install_texts("de");
    surroundings.set("LANG", "de_DE.UTF-8");
    folder().write("home/.config/Tester.conf", "[7.2/Language]\nCurrentLanguage=tlh\n[\n");
    start();
    EXPECT_EQ(getNlsHelp()->used_language(), utString("de"));
    EXPECT_EQ(opened(), utString("Öffnen"));
}

TEST_F(LanguageOfUser, IsTheFirstOfAListThatHasFiles)
{
    install_texts("de");
    surroundings.set("LANGUAGE", "zz:/etc:de_AT:fr");
    surroundings.set("LANG", "fr_FR.UTF-8");
    start();
    EXPECT_EQ(getNlsHelp()->requested_language(), utString("de_AT"));
    EXPECT_EQ(getNlsHelp()->used_language(), utString("de"));
    EXPECT_EQ(opened(), utString("Öffnen"));
}

TEST_F(LanguageOfUser, StaysInForceWhenTheFilesAreThoseOfAllItsCountries)
{
    install_texts("de");
    start();
    getNlsHelp()->set_nls_language("de_AT");
    EXPECT_EQ(nlsDomainManager::language(), utString("de_AT"));
    EXPECT_EQ(opened(), utString("Öffnen"));
}

TEST_F(LanguageOfUser, ThatNobodyHasLeavesNoTraceOfTheEnvironment)
{
    surroundings.set("LANG", "tlh_XX.UTF-8");
    start();
    EXPECT_EQ(getNlsHelp()->requested_language(), utString("tlh_XX"));
    EXPECT_EQ(getNlsHelp()->used_language(), utString("English"));
    EXPECT_EQ(nlsDomainManager::language(), utString("English"));
    EXPECT_EQ(nlsDomainManager::the_env_language, utString());
    EXPECT_EQ(nlsDomainManager::the_env_type, 0);
    EXPECT_EQ(nlsDomainManager::the_regional_settings_flag, 0);
}

TEST_F(LanguageOfUser, IsNoPathOnTheDisk)
{
    install_texts("de");
    start();
    for (char const * name : {"/etc", "de/LC_MESSAGES", "..", "."}) {
        getNlsHelp()->set_nls_language(name);
        EXPECT_EQ(getNlsHelp()->used_language(), utString("English")) << name;
        EXPECT_EQ(nlsDomainManager::language(), utString("English")) << name;
    }
}

TEST_F(LanguageOfUser, IsFoundBelowAFolderWithAColon)
{
    kitTempFolder const elsewhere;
    kit_install_minimum(elsewhere, "a:b");
    elsewhere.write("a:b/share/vmr/locale/de/LC_MESSAGES/sample.mo", texts());
    app().move_installation(elsewhere / "a:b");
    surroundings.set("LANG", "de_DE.UTF-8");
    start();
    EXPECT_EQ(getNlsHelp()->used_language(), utString("de"));
    EXPECT_EQ(opened(), utString("Öffnen"));
}

TEST_F(LanguageOfUser, LeavesTheCharacterFunctionsInTheCLocale)
{
    start();
    for (auto const set : {&sglNlsHelp::set_nls_language, &sglNlsHelp::set_main_language}) {
        ASSERT_TRUE(std::setlocale(LC_CTYPE, "de_DE.UTF-8"));
        ASSERT_TRUE(std::setlocale(LC_COLLATE, "de_DE.UTF-8"));
        (getNlsHelp()->*set)("de");
        EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
        EXPECT_STREQ(std::setlocale(LC_COLLATE, nullptr), "C");
    }
}

TEST_F(LanguageOfUser, WritesNumbersWithTheDecimalPointOfTheLocale)
{
    start();
    EXPECT_EQ(getNlsHelp()->gsprintf("DO_NOT_TRANSLATE", "%01.2f", 3.5), utString("3.50"));
    surroundings.use_decimal_comma();
    getNlsHelp()->set_main_language("de");
    EXPECT_EQ(getNlsHelp()->gsprintf("DO_NOT_TRANSLATE", "%01.2f", 3.5), utString("3,50"));
    EXPECT_EQ(sglNumberLocaliser().localise_number("3"), utString("3,00"));
    EXPECT_EQ(sglNumberLocaliser().localise_number("3,5"), utString("3,50"));
    EXPECT_EQ(sglNumberLocaliser().localise_amount("EUR 12.5"), utString("EUR 12,50"));
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST_F(LanguageOfUser, RemakesTranslatorAndFormatterAndTheirPair)
{
    start();
    EXPECT_EQ(getNlsHelp()->translator_and_formatter()->tsprintf("sample", "menu::Open"), utString("Open"));
    // Only a new translator looks in the new folder, and only a new formatter writes a comma.
    folder().write("other/de/LC_MESSAGES/sample.mo", texts());
    getNlsHelp()->locale_dir(sdbSearchPath({apPathName::from_utf8(folder() / "other")}));
    surroundings.use_decimal_comma();
    getNlsHelp()->set_nls_language("de");
    auto const * const pair = getNlsHelp()->translator_and_formatter();
    EXPECT_EQ(pair->tsprintf("sample", "menu::Open"), utString("Öffnen"));
    EXPECT_EQ(pair->tsprintf("sample", "%.1f", 0.5), utString("0,5"));
}

TEST_F(LanguageOfUser, HasItsTextsInMemoryBeforeATranslationAsksForThem)
{
    auto const file = install_texts("de", "vmrgrlib.mo");
    start();
    getNlsHelp()->set_nls_language("de");
    std::filesystem::remove(file);
    EXPECT_EQ(getNlsHelp()->gsprintf("vmrgrlib", "menu::Open"), utString("Öffnen"));
}
