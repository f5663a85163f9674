#include "vmr/coResourceIterator.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

TEST(ResourceIterator, StandsBeforeTheFirstResourceAtFirst)
{
    coResourceTable table;
    table.set_value("a", "1");
    coResourceIterator it(&table);
    EXPECT_EQ(it(), nullptr);
    EXPECT_NE(++it, 0);
    EXPECT_EQ(it()->key->name, utString("a"));
    EXPECT_EQ(++it, 0);
    EXPECT_EQ(it(), nullptr);
}

TEST(ResourceIterator, SaysAtOnceThatATableIsEmpty)
{
    coResourceTable const table;
    coResourceIterator it(&table);
    EXPECT_EQ(++it, 0);
    EXPECT_EQ(++it, 0);
}

TEST(ResourceIterator, TakesANullTableForAnEmptyOne)
{
    coResourceIterator it(nullptr);
    EXPECT_EQ(++it, 0);
}

TEST(ResourceIterator, StaysAtTheEndOnceThere)
{
    coResourceTable table;
    table.set_value("a", "1");
    coResourceIterator it(&table);
    ++it;
    ++it;
    EXPECT_EQ(++it, 0);
}

TEST(ResourceIterator, MeetsEveryResourceOnce)
{
    coResourceTable table;
    std::multiset<std::string> met;
    for (auto const name : {"b", "a", "c"})
        table.set_value(name, name);
    for (coResourceIterator it(&table); ++it;)
        met.insert(it()->value_text().str());
    EXPECT_EQ(met, (std::multiset<std::string>{"a", "b", "c"}));
}
