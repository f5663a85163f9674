#include "ap/apString.h"

#include <gtest/gtest.h>

TEST(ApString, HoldsTextOfBothForms)
{
    apString const text(L"Gr\u00F6\u00DFe \U0001F600");
    EXPECT_EQ(text.utf8(), "Gr\xC3\xB6\xC3\x9F"
                           "e \xF0\x9F\x98\x80");
    EXPECT_EQ(text.wide(), L"Gr\u00F6\u00DFe \U0001F600");
    EXPECT_TRUE(text.well_formed());
}

TEST(ApString, IsEmptyFromNothing)
{
    EXPECT_TRUE(apString().empty());
    EXPECT_TRUE(apString(static_cast<wchar_t const *>(nullptr)).empty());
    EXPECT_TRUE(apString().well_formed());
}

TEST(ApString, KeepsEveryByteThroughTheWideForm)
{
    std::string bytes;
    for (int i = 1; i < 256; ++i)
        bytes += static_cast<char>(i);
    auto const text = apString::from_utf8(bytes);
    EXPECT_FALSE(text.well_formed());
    EXPECT_EQ(apString(text.wide()).utf8(), bytes);
}

class MalformedText : public testing::TestWithParam<std::string> {};

TEST_P(MalformedText, IsRecognisedAndSurvives)
{
    auto const text = apString::from_utf8("a" + GetParam() + "b");
    EXPECT_FALSE(text.well_formed());
    EXPECT_EQ(apString(text.wide()), text);
}

INSTANTIATE_TEST_SUITE_P(Utf8, MalformedText,
                         testing::Values("\xFF", "\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xC0\xAF",
                                         "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                         "\xF8\x88\x80\x80\x80"));

TEST(ApString, ReplacesWideCharactersThatAreNoText)
{
    EXPECT_EQ(apString(std::wstring(1, static_cast<wchar_t>(0xD800))).utf8(), "\xEF\xBF\xBD");
    EXPECT_EQ(apString(std::wstring(1, static_cast<wchar_t>(0x110000))).utf8(), "\xEF\xBF\xBD");
}

TEST(ApString, AppendsAndOrdersByItsBytes)
{
    EXPECT_EQ(apString(L"a") + apString(L"b"), apString(L"ab"));
    EXPECT_LT(apString(L"B"), apString(L"a"));
    EXPECT_LT(apString(L"z"), apString(L"\u00E4"));
}
