#include "sglWxNlsApplicationSettings.h"

#include "kit/kitAppTest.h"
#include "kit/kitAsOrdinaryUser.h"

#include <wx/log.h>

namespace {

struct LanguageSettings : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        setenv("HOME", folder().path().c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
        app().pre_splash_screen_init();
        settings = std::make_unique<sglWxNlsApplicationSettings>(
            static_cast<sglConfigStore *>(wxConfigBase::Get()), "7.2");
    }

    std::unique_ptr<sglWxNlsApplicationSettings> settings;
};

} // namespace

TEST_F(LanguageSettings, LieUnderTheKeyOfTheProgram)
{
    EXPECT_EQ(settings->key_name(), utString("/7.2/Language/CurrentLanguage"));
}

TEST_F(LanguageSettings, WithoutAKeyGiveADefaultLanguageAndNoError)
{
    nlsLanguage language("fr");
    EXPECT_EQ(settings->get_display_language(language), nlsErrorData(0));
    EXPECT_TRUE(language.empty());
}

TEST_F(LanguageSettings, GiveBackWhatWasStored)
{
    EXPECT_EQ(settings->set_display_language(nlsLanguage("pt_BR")), nlsErrorData(0));
    nlsLanguage language;
    settings->get_display_language(language);
    EXPECT_EQ(language.iso_name(), utString("pt-BR"));
}

TEST_F(LanguageSettings, RepairAnOldValueOnItsWayBack)
{
    struct {
        char const * stored;
        char const * read;
    } const values[] = {{"pt-br", "pt-BR"}, {"de", "de"}, {"fr-FRA", "fr-FRA"}};
    for (auto const & [stored, read] : values) {
        wxConfigBase::Get()->Write("/7.2/Language/CurrentLanguage", stored);
        nlsLanguage language;
        EXPECT_EQ(settings->get_display_language(language), nlsErrorData(0));
        EXPECT_EQ(language.iso_name(), utString(read));
    }
}

TEST_F(LanguageSettings, TellWithoutAMessageThatTheChoiceCannotBeKept)
{
    std::filesystem::create_directories(folder() / ".config/Tester.conf");
    wxLogBuffer said; // shows what it got at its end, and here it gets nothing
    wxLog * const before = wxLog::SetActiveTarget(&said);
    testing::internal::CaptureStderr();
    EXPECT_EQ(settings->set_display_language(nlsLanguage("de")), nlsErrorData(1));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(said.GetBuffer(), "");
}

TEST_F(LanguageSettings, CannotBeKeptWhereTheUserMayNotWrite)
{
    wxLogBuffer said;
    wxLog * const before = wxLog::SetActiveTarget(&said);
    {
        kitAsOrdinaryUser const ordinary;
        EXPECT_EQ(settings->set_display_language(nlsLanguage("de")), nlsErrorData(1));
    }
    wxLog::SetActiveTarget(before);
    EXPECT_EQ(said.GetBuffer(), "");
    EXPECT_FALSE(folder().exists(".config"));
}

TEST_F(LanguageSettings, RepairOldValuesAndPassOthersThrough)
{
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string("pt-br"), utString("pt-BR"));
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string("de"), utString("de"));
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string("fr-FRA"), utString("fr-FRA"));
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string(nullptr), utString());
}
