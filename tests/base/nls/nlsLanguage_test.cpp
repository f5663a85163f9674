#include "nls/nlsLanguage.h"

#include <gtest/gtest.h>

namespace {

utString name(char const * text)
{
    return nlsLanguage(text).name();
}

utString iso(char const * text)
{
    return nlsLanguage(text).iso_name();
}

} // namespace

TEST(Language, IsEmptyWhenMadeFromNothing)
{
    EXPECT_TRUE(nlsLanguage().empty());
    EXPECT_EQ(nlsLanguage().iso_name(), utString(""));
    EXPECT_EQ(nlsLanguage(""), nlsLanguage());
    EXPECT_EQ(nlsLanguage(utString::make_invalid()), nlsLanguage());
}

TEST(Language, ReadsSettingsEnvironmentAndFolderNamesAlike)
{
    EXPECT_EQ(nlsLanguage("pt-BR"), nlsLanguage("pt_BR"));
    EXPECT_EQ(nlsLanguage("pt_BR.UTF-8"), nlsLanguage("pt_BR"));
    EXPECT_EQ(nlsLanguage("de_DE@euro"), nlsLanguage("de_DE"));
    EXPECT_EQ(nlsLanguage("PT-br"), nlsLanguage("pt_BR"));
}

TEST(Language, HasAnIsoNameAndAFolderName)
{
    EXPECT_EQ(iso("pt_BR"), utString("pt-BR"));
    EXPECT_EQ(name("pt-BR"), utString("pt_BR"));
    EXPECT_EQ(iso("de"), utString("de"));
    EXPECT_EQ(iso("zh_Hans"), utString("zh-Hans"));
}

TEST(Language, KnowsEnglishByItsNameAndLeavesOtherNamesAlone)
{
    EXPECT_EQ(iso("English"), utString("en"));
    EXPECT_EQ(iso("english"), utString("en"));
    EXPECT_EQ(iso("Klingon"), utString("Klingon"));
    EXPECT_EQ(iso("x"), utString("x"));
}

TEST(Language, TakesThePlainLocalesForNoLanguage)
{
    EXPECT_TRUE(nlsLanguage("C").empty());
    EXPECT_TRUE(nlsLanguage("C.UTF-8").empty());
    EXPECT_TRUE(nlsLanguage("POSIX").empty());
}

TEST(Language, NeedsNoTranslationInPlainEnglishOnly)
{
    EXPECT_TRUE(nlsLanguage().is_untranslated());
    EXPECT_TRUE(nlsLanguage("en").is_untranslated());
    EXPECT_TRUE(nlsLanguage("English").is_untranslated());
    EXPECT_FALSE(nlsLanguage("en_GB").is_untranslated());
    EXPECT_FALSE(nlsLanguage("de").is_untranslated());
}

TEST(Language, LosesItsCountryOnRequest)
{
    EXPECT_EQ(nlsLanguage("de_AT").without_country(), nlsLanguage("de"));
    EXPECT_EQ(nlsLanguage("de").without_country(), nlsLanguage("de"));
}
