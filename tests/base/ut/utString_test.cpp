#include "ut/utString.h"

#include <gtest/gtest.h>
#include <unordered_set>

TEST(UtString, IsEmptyAndValidAtFirst)
{
    utString const text;
    EXPECT_TRUE(text.empty());
    EXPECT_FALSE(text.invalid());
}

TEST(UtString, KeepsInvalidApartFromEmpty)
{
    utString text = utString::make_invalid();
    EXPECT_TRUE(text.invalid());
    EXPECT_TRUE(text.empty());
    EXPECT_STREQ(text.c_str(), "");
    EXPECT_NE(text, utString());
    EXPECT_EQ(text, utString(static_cast<char const *>(nullptr)));
    text.make_empty();
    EXPECT_FALSE(text.invalid());
    text.invalidate();
    EXPECT_TRUE(text.invalid());
}

TEST(UtString, BecomesValidByAppending)
{
    auto text = utString::make_invalid();
    text += utString();
    EXPECT_FALSE(text.invalid());
    text << "a" << 12 << utString("b") << 0.5;
    EXPECT_EQ(text.str(), "a12b0.5");
}

TEST(UtString, GivesZeroOutsideTheText)
{
    utString const text("ab");
    EXPECT_EQ(text[1], 'b');
    EXPECT_EQ(text[2], '\0');
    EXPECT_EQ(text[-1], '\0');
}

TEST(UtString, CutsWordsAndLeavesTheDelimiter)
{
    utString line("  one two");
    utString word;
    EXPECT_EQ(line.extract_string(" ", word), 1);
    EXPECT_EQ(word.str(), "one");
    EXPECT_EQ(line.str(), " two");
    EXPECT_EQ(line.extract_string(" ", word), 1);
    EXPECT_EQ(word.str(), "two");
    EXPECT_TRUE(line.empty());
    EXPECT_EQ(line.extract_string(" ", word), 0);
    EXPECT_TRUE(word.empty());
}

TEST(UtString, GivesNoWordFromDelimitersAlone)
{
    utString line("   ");
    utString word("old");
    EXPECT_EQ(line.extract_string(" ", word), 0);
    EXPECT_TRUE(word.empty());
    EXPECT_FALSE(word.invalid());
}

TEST(UtString, TakesAnUnterminatedQuotationToTheEnd)
{
    utString line("a b c");
    utString word;
    EXPECT_EQ(line.extract_string("\"", word), 1);
    EXPECT_EQ(word.str(), "a b c");
}

TEST(UtString, DropsLeadingAndTrailingBytesOfASet)
{
    utString text("\"\" x \" ");
    text.remove_leading_chars("\" ");
    EXPECT_EQ(text.str(), "x \" ");
    text.remove_trailing_chars("\" ");
    EXPECT_EQ(text.str(), "x");
    text.remove_leading_chars("x");
    EXPECT_TRUE(text.empty());
    text.remove_trailing_chars("x");
    EXPECT_TRUE(text.empty());
}

TEST(UtString, ClipsRemovalInsertionAndParts)
{
    utString text("abcdef");
    text.remove(4, 100);
    EXPECT_EQ(text.str(), "abcd");
    text.remove(-1, 2);
    text.remove(9, 2);
    EXPECT_EQ(text.str(), "abcd");
    text.insert(99, "!");
    text.insert(-5, "?");
    EXPECT_EQ(text.str(), "?abcd!");
    EXPECT_EQ(text.substring(1, 2).str(), "ab");
    EXPECT_EQ(text.substring(4, 99).str(), "d!");
    EXPECT_TRUE(text.substring(6, 1).empty());
    EXPECT_TRUE(text.substring(-1, 1).empty());
}

TEST(UtString, LocatesParts)
{
    utString const text("abcabc");
    EXPECT_EQ(text.locate_substring("bc"), 1);
    EXPECT_EQ(text.locate_substring("bc", 2), 4);
    EXPECT_EQ(text.locate_substring("x"), -1);
    EXPECT_EQ(text.locate_substring("a", -1), -1);
    EXPECT_EQ(text.locate_substring("a", 100), -1);
}

TEST(UtString, ParsesAnIntegerAndMovesBehindIt)
{
    utString const text("x-12.5");
    int value = 7;
    int position = 1;
    EXPECT_EQ(text.parse(value, position), 1);
    EXPECT_EQ(value, -12);
    EXPECT_EQ(position, 4);
    EXPECT_EQ(text.parse(value, position), 0);
    EXPECT_EQ(value, -12);
    EXPECT_EQ(position, 4);
}

TEST(UtString, RefusesNumbersThatDoNotFit)
{
    utString const text("99999999999");
    int value = 7;
    int position = 0;
    EXPECT_EQ(text.parse(value, position), 0);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(position, 0);
}

TEST(UtString, ComparesWithAndWithoutCase)
{
    EXPECT_LT(utString("Ab").compare("ab"), 0);
    EXPECT_EQ(utString("Ab").case_compare("aB"), 0);
    EXPECT_LT(utString("ab").case_compare("ABC"), 0);
    EXPECT_GT(utString("b").case_compare("ABC"), 0);
    EXPECT_LT(utString("a").case_compare("\xC3\xA4"), 0);
}

TEST(UtString, ChangesTheCaseOfAsciiLettersOnly)
{
    utString text("aZ\xC3\xA4");
    text.to_upper();
    EXPECT_EQ(text.str(), "AZ\xC3\xA4");
    text.to_lower();
    EXPECT_EQ(text.str(), "az\xC3\xA4");
}

TEST(UtString, SharesNothingWithItsCopies)
{
    utString const first("one");
    utString second = first;
    second << "more";
    EXPECT_EQ(first.str(), "one");
}

TEST(UtString, OrdersAndHashesByItsBytes)
{
    EXPECT_LT(utString("a"), utString("b"));
    std::unordered_set<utString> const set{"a", "b", "a"};
    EXPECT_EQ(set.size(), 2U);
}

TEST(UtString, WritesNumbersSoThatTheyReadBack)
{
    utString text;
    text << 0.1;
    EXPECT_EQ(text.str(), "0.1");
    EXPECT_EQ(std::stod((utString() << 1.0 / 3.0).str()), 1.0 / 3.0);
}
