#include "sdk/sdkText.h"

#include <gtest/gtest.h>

TEST(Text, FormatsItsArgumentsWithoutTheContext)
{
    EXPECT_EQ(sdkText("c::%s has %d parts of %g mm", "a.stp", 3, 0.5).formatted(),
              "a.stp has 3 parts of 0.5 mm");
    EXPECT_EQ(sdkText("c::%5d|%-4d|%.2f|%04d", 42, 42, 1.0, 7).formatted(), "   42|42  |1.00|0007");
    EXPECT_EQ(sdkText("plain").formatted(), "plain");
}

TEST(Text, KeepsPercentSigns)
{
    EXPECT_EQ(sdkText("c::100%% of %s, 5% left", "all").formatted(), "100% of all, 5% left");
    EXPECT_EQ(sdkText("c::50%").formatted(), "50%");
}

TEST(Text, FormatsWholeNumbersOfAnySize)
{
    EXPECT_EQ(sdkText("c::%d", std::int64_t{1} << 40).formatted(), "1099511627776");
    EXPECT_EQ(sdkText("c::%d", std::size_t{7}).formatted(), "7");
}

TEST(Text, KnowsWhetherConversionsAndArgumentsFit)
{
    EXPECT_TRUE(sdkText("c::%s %d %g", "a", 1, 1.5).fits());
    EXPECT_TRUE(sdkText("c::100%%").fits());
    EXPECT_FALSE(sdkText("c::%s").fits());
    EXPECT_FALSE(sdkText("c::nothing", 1).fits());
    EXPECT_FALSE(sdkText("c::%s", 1).fits());
    EXPECT_FALSE(sdkText("c::%d", "one").fits());
    EXPECT_FALSE(sdkText("c::%g", 1).fits());
}

TEST(Text, LeavesAConversionWithoutItsArgumentAsItIs)
{
    EXPECT_EQ(sdkText("c::%s and %s", "one").formatted(), "one and %s");
    EXPECT_EQ(sdkText("c::%d", "text").formatted(), "%d");
    EXPECT_EQ(sdkText("c::%n%p", 1).formatted(), "%n%p");
}

TEST(Text, FormatsTermsInEnglish)
{
    EXPECT_EQ(sdkText("c::%s (%s)", "Rod", "term::solid").formatted(), "Rod (solid)");
    EXPECT_TRUE(sdkText("c::%s (%s)", "Rod", "term::solid").fits());
    EXPECT_EQ(sdkText("c::%s", "c::solid").formatted(), "c::solid");
}
