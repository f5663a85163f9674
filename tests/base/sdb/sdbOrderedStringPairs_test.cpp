#include "sdb/sdbOrderedStringPairs.h"

#include <gmock/gmock.h>

TEST(OrderedStringPairs, TranslateBothWays)
{
    sdbOrderedStringPairs pairs;
    pairs.add_pair("Solid", "Volumenkörper");
    pairs.add_pair("Surface", "Fläche");
    EXPECT_EQ(pairs.string2("Surface"), utString("Fläche"));
    EXPECT_EQ(pairs.string1("Volumenkörper"), utString("Solid"));
}

TEST(OrderedStringPairs, GiveAnEmptyTextForOneThatTheyDoNotHold)
{
    sdbOrderedStringPairs pairs;
    pairs.add_pair("Solid", "Volumenkörper");
    EXPECT_TRUE(pairs.string2("Volumenkörper").empty());
    EXPECT_FALSE(pairs.string2("Volumenkörper").invalid());
    EXPECT_TRUE(pairs.string1("solid").empty());
    EXPECT_FALSE(pairs.string1("").invalid());
}

TEST(OrderedStringPairs, AreWalkedInTheOrderInWhichTheyWereAdded)
{
    sdbOrderedStringPairs pairs;
    for (auto const text : {"z", "a", "m"})
        pairs.add_pair(text, "shown");
    std::vector<std::string> order;
    for (auto it = pairs.iterator(); ++it;)
        order.push_back(it().string1().str());
    EXPECT_THAT(order, testing::ElementsAre("z", "a", "m"));
    EXPECT_EQ(pairs.string1("shown"), utString("z"));
}

TEST(OrderedStringPairs, CopyWithTheirOrder)
{
    sdbOrderedStringPairs pairs;
    pairs.add_pair("b", "2");
    auto const copy = pairs;
    pairs.add_pair("a", "1");
    auto it = copy.iterator();
    EXPECT_TRUE(++it);
    EXPECT_EQ(it().string2(), utString("2"));
    EXPECT_FALSE(++it);
}

TEST(OrderedStringPairs, AreEmptyAtFirst)
{
    sdbOrderedStringPairs const pairs;
    auto it = pairs.iterator();
    EXPECT_FALSE(++it);
}
