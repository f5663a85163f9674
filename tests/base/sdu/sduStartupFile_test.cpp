#include "sdu/sduStartupFile.h"

#include <gtest/gtest.h>

TEST(StartupFile, ReadsFieldsBetweenWhateverElseThereIs)
{
    sduStartupFile const file("# a comment = x\n\n  key =  a value  \nnonsense\n= no key\nempty =\n");
    EXPECT_EQ(file.find("key"), utString("a value"));
    EXPECT_EQ(file.find(""), utString("no key"));
    EXPECT_EQ(file.find("empty"), utString());
    EXPECT_TRUE(file.find("# a comment").invalid());
    EXPECT_TRUE(file.find("nonsense").invalid());
    EXPECT_TRUE(file.find("Key").invalid());
}

TEST(StartupFile, KeepsEveryLineThatItDoesNotChange)
{
    std::string const text = "\xEF\xBB\xBF# comment\n\nunknown line\n  a=1\r\n b  =  2\n\xFF\xFE\n#end\n";
    EXPECT_EQ(sduStartupFile(text).text(), text);
    sduStartupFile file(text);
    file.set("b", "3");
    EXPECT_EQ(file.text(), "\xEF\xBB\xBF# comment\n\nunknown line\n  a=1\r\nb = 3\n\xFF\xFE\n#end\n");
    file.set("c", "4");
    EXPECT_EQ(file.text().substr(file.text().size() - 12), "\n#end\nc = 4\n");
    EXPECT_EQ(file.find("a"), utString("1"));
}

TEST(StartupFile, EndsItsLastLine)
{
    sduStartupFile file("a = 1");
    EXPECT_EQ(file.find("a"), utString("1"));
    file.set("b", "2");
    EXPECT_EQ(file.text(), "a = 1\nb = 2\n");
}

TEST(StartupFile, WritesLineEndsLikeThoseItFound)
{
    sduStartupFile file("a = 1\r\nb = 2\r\n");
    EXPECT_EQ(file.find("a"), utString("1"));
    file.set("a", "3");
    file.set("c", "4");
    EXPECT_EQ(file.text(), "a = 3\r\nb = 2\r\nc = 4\r\n");
}

TEST(StartupFile, TakesTheLastOfTwoLinesWithOneKey)
{
    sduStartupFile file("a = 1\na = 2\n");
    EXPECT_EQ(file.find("a"), utString("2"));
    file.set("a", "3");
    EXPECT_EQ(file.find("a"), utString("3"));
    EXPECT_EQ(sduStartupFile(file.text()).find("a"), utString("3"));
    file.set("a", utString::make_invalid());
    EXPECT_TRUE(file.find("a").invalid());
    EXPECT_TRUE(file.text().empty());
}

TEST(StartupFile, LeavesUnknownEscapesAsTheyAre)
{
    sduStartupFile const file("a = C:\\data\\q\nb = \\\nc = \\x4\nd = \\xzz\ne = \\x\n");
    EXPECT_EQ(file.find("a"), utString("C:\\data\\q"));
    EXPECT_EQ(file.find("b"), utString("\\"));
    EXPECT_EQ(file.find("c"), utString("\\x4"));
    EXPECT_EQ(file.find("d"), utString("\\xzz"));
    EXPECT_EQ(file.find("e"), utString("\\x"));
}

class StartupText : public testing::TestWithParam<std::string> {};

TEST_P(StartupText, RoundTripsAsValueAndAsKey)
{
    sduStartupFile file("# comment\n");
    file.set("key", GetParam());
    file.set(GetParam(), "value");
    file.set("last", "x");
    sduStartupFile const again(file.text());
    EXPECT_EQ(again.find("key"), GetParam() == "key" ? utString("value") : utString(GetParam()));
    EXPECT_EQ(again.find(GetParam()), utString("value"));
    EXPECT_EQ(again.find("last"), utString("x"));
    EXPECT_EQ(again.text(), file.text());
}

INSTANTIATE_TEST_SUITE_P(Texts, StartupText,
                         testing::Values("plain", "", " ", "   ", "  leading", "trailing  ", " \t both\t ",
                                         "a=b=c", "=", "one\ntwo\r\nthree\n", "\n", "back\\slash\\n", "\\",
                                         "\\\\", "\\s", "\\x41", "# not a comment", "#",
                                         "\xC3\xA4\xE2\x82\xAC", "\xFF\xFE\x80", std::string("a\0b", 3),
                                         "\v\f\x01\x1F\x7F", "key", std::string(5000, '=')));
