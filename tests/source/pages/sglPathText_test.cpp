#include "sglPathText.h"

#include <gtest/gtest.h>

namespace {

utString fixed(char const * path)
{
    utString text(path);
    sgl_fix_backslashes(text);
    return text;
}

} // namespace

TEST(PathText, IsTheNameWithItsExtension)
{
    EXPECT_EQ(ExtractFile("/home/user/part.one.stp"), utString("part.one.stp"));
    EXPECT_EQ(ExtractFile("part"), utString("part"));
    EXPECT_EQ(ExtractFile("/home/user.d/part"), utString("part"));
    EXPECT_EQ(ExtractFile("/home/.hidden"), utString(".hidden"));
    EXPECT_EQ(ExtractFile("/home/"), utString(""));
    EXPECT_EQ(ExtractFile(utString::make_invalid()), utString(""));
}

TEST(PathText, HasNoDoubledBackslashesBehindItsBeginning)
{
    EXPECT_EQ(fixed(R"(a\\b\\\c)"), utString(R"(a\b\c)"));
    EXPECT_EQ(fixed(R"(a\b)"), utString(R"(a\b)"));
    EXPECT_EQ(fixed("/a//b"), utString("/a//b"));
}

TEST(PathText, KeepsTheLeadingPairOfANetworkPath)
{
    EXPECT_EQ(fixed(R"(\\server\\share)"), utString(R"(\\server\share)"));
}

TEST(PathText, KeepsItsLastCharacter)
{
    EXPECT_EQ(fixed(R"(a\\)"), utString(R"(a\)"));
    EXPECT_EQ(fixed(R"(\)"), utString(R"(\)"));
    EXPECT_EQ(fixed(R"(\\)"), utString(R"(\\)"));
    EXPECT_EQ(fixed(""), utString(""));
}

TEST(PathText, StaysInvalid)
{
    utString text = utString::make_invalid();
    sgl_fix_backslashes(text);
    EXPECT_TRUE(text.invalid());
}
