#include "sglWxNlsApplicationSettings.h"

#include "kit/kitAppTest.h"

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

TEST_F(LanguageSettings, RepairOldValuesAndPassOthersThrough)
{
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string("pt-br"), utString("pt-BR"));
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string("de"), utString("de"));
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string("fr-FRA"), utString("fr-FRA"));
    EXPECT_EQ(sglWxNlsApplicationSettings::fixup_language_string(nullptr), utString());
}
