#include <gtest/gtest.h>

#include "ap/apStringCPEncoding.h"
#include "ap/apStringCRTEncoding.h"

TEST(CodePageEncoding, ConvertsBothWays)
{
    apStringCPEncoding const encoding(1252);
    ASSERT_TRUE(encoding.usable());
    bool error = true;
    EXPECT_EQ(encoding.to_ap(utString("\x80 caf\xE9"), error), apString(L"\u20AC caf\u00E9"));
    EXPECT_FALSE(error);
    error = true;
    EXPECT_EQ(encoding.to_ut(apString(L"\u20AC caf\u00E9"), error), utString("\x80 caf\xE9"));
    EXPECT_FALSE(error);
}

TEST(CodePageEncoding, KnowsNumbersThatAreNoCodePagesOfIconv)
{
    EXPECT_EQ(apStringCPEncoding(65001).to_ap(utString("\xC3\xA4")), apString(L"\u00E4"));
    EXPECT_EQ(apStringCPEncoding(28591).to_ap(utString("\xE4")), apString(L"\u00E4"));
    EXPECT_EQ(apStringCPEncoding(28605).to_ap(utString("\xA4")), apString(L"\u20AC"));
    EXPECT_EQ(apStringCPEncoding(932).to_ap(utString("\x83\x65")), apString(L"\u30C6"));
    EXPECT_TRUE(apStringCPEncoding(20127).usable());
    EXPECT_TRUE(apStringCPEncoding(20866).usable());
    EXPECT_TRUE(apStringCPEncoding(54936).usable());
}

TEST(CodePageEncoding, IsNotUsableForAnUnknownNumber)
{
    apStringCPEncoding const encoding(31999);
    EXPECT_FALSE(encoding.usable());
    bool error = false;
    EXPECT_EQ(encoding.to_ap(utString("a"), error), apString(L"a"));
    EXPECT_TRUE(error);
    error = false;
    EXPECT_EQ(encoding.to_ut(apString(L"a"), error), utString("a"));
    EXPECT_TRUE(error);
    EXPECT_FALSE(apStringCPEncoding(-1).usable());
    EXPECT_FALSE(apStringCPEncoding(0).usable());
}

TEST(CodePageEncoding, GivesBackBytesThatMeanNothing)
{
    apStringCPEncoding const encoding(1252);
    bool error = false;
    auto const text = encoding.to_ap(utString("a\x81z"), error);
    EXPECT_TRUE(error);
    EXPECT_EQ(encoding.to_ut(text), utString("a\x81z"));
}

TEST(CodePageEncoding, WritesAQuestionMarkForWhatItCannotExpress)
{
    bool error = false;
    EXPECT_EQ(apStringCPEncoding(1252).to_ut(apString(L"a\u30C6\u30C6z"), error), utString("a??z"));
    EXPECT_TRUE(error);
}

TEST(CodePageEncoding, ConvertsTextLongerThanItsBuffer)
{
    apStringCPEncoding const encoding(1252);
    std::string const bytes(5000, '\xE4');
    bool error = true;
    auto const text = encoding.to_ap(utString(bytes), error);
    EXPECT_FALSE(error);
    EXPECT_EQ(text.utf8().size(), 10000U);
    EXPECT_EQ(encoding.to_ut(text).str(), bytes);
}

TEST(CodePageEncoding, EndsAShiftedStateAtTheEndOfTheText)
{
    apStringCharsetEncoding const encoding("ISO-2022-JP");
    ASSERT_TRUE(encoding.usable());
    auto const bytes = encoding.to_ut(apString(L"\u30C6"));
    EXPECT_EQ(bytes.substring(bytes.length() - 3, 3), utString("\x1B(B"));
    EXPECT_EQ(encoding.to_ap(bytes), apString(L"\u30C6"));
}

TEST(CodePageEncoding, FlagsAnInvalidString)
{
    bool error = false;
    EXPECT_TRUE(apStringCPEncoding(1252).to_ap(utString::make_invalid(), error).empty());
    EXPECT_TRUE(error);
}

TEST(CLibraryEncoding, ReadsTheCharacterSetOfTheLocale)
{
    EXPECT_EQ(apStringCRTEncoding("C.UTF-8").charset(), "UTF-8");
}

TEST(CLibraryEncoding, IsUtf8WhereTheLocaleSaysNothing)
{
    EXPECT_EQ(apStringCRTEncoding("C").charset(), "UTF-8");
    EXPECT_EQ(apStringCRTEncoding("xx_YY.not-installed").charset(), "UTF-8");
}

TEST(CLibraryEncoding, ConvertsBothWays)
{
    apStringCRTEncoding const encoding("C.UTF-8");
    bool error = true;
    auto const text = encoding.to_ap(utString("\xC3\xA4\xE2\x82\xAC"), error);
    EXPECT_FALSE(error);
    EXPECT_EQ(text, apString(L"\u00E4\u20AC"));
    EXPECT_EQ(encoding.to_ut(text), utString("\xC3\xA4\xE2\x82\xAC"));
}

TEST(CLibraryEncoding, GivesBackMalformedBytes)
{
    apStringCRTEncoding const encoding("C.UTF-8");
    for (char const * bytes : {"a\xFFz", "\xC3", "\xE2\x82", "\xED\xA0\x80"}) {
        bool error = false;
        auto const text = encoding.to_ap(utString(bytes), error);
        EXPECT_TRUE(error) << bytes;
        EXPECT_EQ(text.utf8(), bytes);
        error = false;
        EXPECT_EQ(encoding.to_ut(text, error).str(), bytes);
        EXPECT_TRUE(error) << bytes;
    }
}
