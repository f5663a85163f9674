#include "co/utStringutStringcoTable.h"

#include <gtest/gtest.h>

namespace {

std::string joined(utStringutStringcoTable const & table)
{
    std::string text;
    for (auto const & [key, value] : table)
        text += key.str() + "=" + value.str() + ";";
    return text;
}

} // namespace

TEST(StringTable, PutsAKeyInWhenItIsAskedForByIndex)
{
    utStringutStringcoTable table(4, 50);
    EXPECT_EQ(table.member("a"), 0);
    EXPECT_TRUE(table["a"].empty());
    EXPECT_EQ(table.member("a"), 1);
    table["a"] = "1";
    EXPECT_EQ(table.read("a"), utString("1"));
    EXPECT_EQ(table.count(), 1);
}

TEST(StringTable, ReadsWithoutPuttingIn)
{
    utStringutStringcoTable table(4, 50);
    utString value("old");
    EXPECT_TRUE(table.read("a").invalid());
    EXPECT_EQ(table.read("a", value), 0);
    EXPECT_EQ(value, utString("old"));
    EXPECT_TRUE(table.empty());
    table["a"] = "1";
    EXPECT_EQ(table.read("a", value), 1);
    EXPECT_EQ(value, utString("1"));
}

TEST(StringTable, IsWalkedInTheOrderOfInsertion)
{
    utStringutStringcoTable table(4, 50);
    for (char const * key : {"z", "a", "m"})
        table[key] = utString(key) + "!";
    table["a"] = "changed";
    EXPECT_EQ(joined(table), "z=z!;a=changed;m=m!;");
    EXPECT_EQ(table.remove("a"), 1);
    EXPECT_EQ(table.remove("a"), 0);
    table["a"] = "again";
    EXPECT_EQ(joined(table), "z=z!;m=m!;a=again;");
}

TEST(StringTable, DistinguishesCaseInItsKeys)
{
    utStringutStringcoTable table(4, 50);
    table["key"] = "1";
    EXPECT_EQ(table.member("Key"), 0);
}

TEST(StringTable, KeepsItsCopyApart)
{
    utStringutStringcoTable table(4, 50);
    table["a"] = "1";
    auto copy = table;
    copy["a"] = "2";
    copy["b"] = "3";
    EXPECT_EQ(joined(table), "a=1;");
    table = copy;
    copy.clear();
    EXPECT_EQ(joined(table), "a=2;b=3;");
    table.remove("a");
    EXPECT_EQ(table.member("b"), 1);
}

TEST(StringTable, GrowsBeyondItsFirstSize)
{
    utStringutStringcoTable table(4, 50);
    utString & first = table["0"];
    for (int i = 0; i < 1000; ++i)
        table[std::to_string(i)] = std::to_string(i);
    EXPECT_EQ(table.count(), 1000);
    EXPECT_EQ(first, utString("0"));
    EXPECT_EQ(table.read("999"), utString("999"));
}

TEST(StringTable, TakesAnySizing)
{
    utStringutStringcoTable table(-1, 0);
    table["a"] = "1";
    EXPECT_EQ(table.read("a"), utString("1"));
}
