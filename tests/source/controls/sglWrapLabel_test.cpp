#include "controls/sglWrapLabel.h"

#include <gtest/gtest.h>

namespace {

/// Wrapped where each letter is as wide as the others.
std::string wrapped(char const * text, int letters)
{
    return sgl_wrapped(wxString::FromUTF8(text), letters,
                       [](wxString const & line) { return static_cast<int>(line.length()); })
        .utf8_string();
}

} // namespace

TEST(WrappedText, BreaksAtBlanksWhichGo)
{
    EXPECT_EQ(wrapped("one two three", 13), "one two three");
    EXPECT_EQ(wrapped("one two three", 12), "one two\nthree");
    EXPECT_EQ(wrapped("one two three", 7), "one two\nthree");
    EXPECT_EQ(wrapped("one two three", 6), "one\ntwo\nthree");
    EXPECT_EQ(wrapped("one   two", 5), "one\ntwo");
}

TEST(WrappedText, BreaksBetweenIdeographsAndNotBeforeAClosingMark)
{
    EXPECT_EQ(wrapped("記録を確認、削除する", 4), "記録を確\n認、削除\nする");
    EXPECT_EQ(wrapped("記録を確認、削除する", 5), "記録を確\n認、削除す\nる");
    EXPECT_EQ(wrapped("「記録」", 1), "「記\n録」");
}

TEST(WrappedText, KeepsTheLineEndsThatItHas)
{
    EXPECT_EQ(wrapped("one two\nthree\n\nfour five", 5), "one\ntwo\nthree\n\nfour\nfive");
    EXPECT_EQ(wrapped("\none\n", 5), "\none\n");
}

TEST(WrappedText, LeavesWholeWhatHasNoPlaceToBreak)
{
    EXPECT_EQ(wrapped("a incomprehensible b", 5), "a\nincomprehensible\nb");
    EXPECT_EQ(wrapped("incomprehensible", 5), "incomprehensible");
    EXPECT_EQ(wrapped("x", 0), "x");
    EXPECT_EQ(wrapped("", 5), "");
}
