#include "compare/cmpColumns.h"

#include <gtest/gtest.h>

TEST(CompareColumns, CutOutTheMiddle)
{
    EXPECT_EQ(cmp_cut("short", 10), "short");
    EXPECT_EQ(cmp_cut("exactly_10", 10), "exactly_10");
    EXPECT_EQ(cmp_cut("/home/user/models/bracket.step", 14), "/home...t.step");
    EXPECT_EQ(cmp_width(cmp_cut("/home/user/models/bracket.step", 15)), 15U);
}

TEST(CompareColumns, CountCharactersAndNotBytes)
{
    EXPECT_EQ(cmp_width("Gehäuse"), 7U);
    EXPECT_EQ(cmp_width("部品"), 4U);
    // Never in the middle of a character.
    EXPECT_EQ(cmp_cut("部品部品部品部品", 9), "部...品");
    EXPECT_EQ(cmp_width("\xC3"), 1U) << "a text that is cut off is read to its end and no further";
}

TEST(CompareColumns, WrapAtBlanks)
{
    EXPECT_EQ(cmp_wrap("one two three four", 9), "one two\n  three\n  four");
    EXPECT_EQ(cmp_wrap("averyverylongword next", 5), "averyverylongword\n  next");
    EXPECT_EQ(cmp_wrap("", 5), "");
}

TEST(CompareColumns, AlignCells)
{
    EXPECT_EQ(cmp_columns({{"", "A", "B"}, {"Flächen", "1", "20"}, {"x", "", ""}}),
              "         A  B\nFlächen  1  20\nx\n");
}
