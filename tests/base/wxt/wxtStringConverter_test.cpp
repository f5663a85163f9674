#include "wxt/wxtStringConverter.h"

#include "wxt/wxtApStringConverter.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

/// The text as it comes back from the toolkit.
std::string there_and_back(std::string const & text)
{
    return wxtStringConverter::to_ut(wxtStringConverter::to_wx(utString(text))).str();
}

} // namespace

TEST(StringConverter, KeepsTextOfEveryScript)
{
    for (std::string const text : {"", "part.step",
                                   "Gr\xc3\xb6\xc3\x9f"
                                   "e.igs",
                                   "\xe9\x83\xa8\xe5\x93\x81.stp", "\xf0\x9f\x94\xa9.stl"})
        EXPECT_EQ(there_and_back(text), text);
}

TEST(StringConverter, GivesTheToolkitTheCharactersThemselves)
{
    EXPECT_EQ(wxtStringConverter::to_wx(utString("\xc3\x9c")), wxString(L"\u00dc"));
    EXPECT_EQ(wxtStringConverter::to_wx(utString("\xf0\x9f\x94\xa9")).length(), 1u);
    EXPECT_EQ(wxtStringConverter::to_ut(wxString(L"\u00dc")), utString("\xc3\x9c"));
}

TEST(StringConverter, LosesNoByteOfAFileNameThatIsNotText)
{
    for (std::string const name : {"\xff", "caf\xe9.stp", "a\xc3", "\x80\x81 \xfe", "ok\xed\xa0\x80z"})
        EXPECT_EQ(there_and_back(name), name) << testing::PrintToString(name);
}

TEST(StringConverter, KeepsBytesBehindAZero)
{
    std::string const text("a\0b", 3);
    EXPECT_EQ(there_and_back(text), text);
}

TEST(StringConverter, TakesAnInvalidStringForAnEmptyOne)
{
    EXPECT_TRUE(wxtStringConverter::to_wx(utString::make_invalid()).empty());
    EXPECT_FALSE(wxtStringConverter::to_ut(wxString()).invalid());
}

TEST(StringConverter, DoesNotDependOnTheLocale)
{
    std::string const before = std::setlocale(LC_ALL, nullptr);
    ASSERT_TRUE(std::setlocale(LC_ALL, "C"));
    EXPECT_EQ(there_and_back("Gr\xc3\xb6\xc3\x9f"
                             "e"),
              "Gr\xc3\xb6\xc3\x9f"
              "e");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(ApStringConverter, KeepsStringsPathsAndFileNames)
{
    auto const path = apPathName::from_utf8("/tmp/caf\xe9/\xc3\xbc.stp");
    EXPECT_EQ(wxtApStringConverter::to_path(wxtApStringConverter::to_wx(path)), path);
    auto const name = apFileName::from_utf8("\xc3\xbc\xff.stp");
    EXPECT_EQ(wxtApStringConverter::to_file_name(wxtApStringConverter::to_wx(name)), name);
    apString const text = L"\u00fc";
    EXPECT_EQ(wxtApStringConverter::to_wx(text), wxString(L"\u00fc"));
    EXPECT_EQ(wxtApStringConverter::to_ap(wxString(L"\u00fc")), text);
}

TEST(ApStringConverter, AgreesWithTheConverterOfStrings)
{
    std::string const bytes = "a\xff\xc3\xbc";
    EXPECT_EQ(wxtApStringConverter::to_wx(apString::from_utf8(bytes)),
              wxtStringConverter::to_wx(utString(bytes)));
}
