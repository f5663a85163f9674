#include "vmr/coResourceTable.h"

#include <gtest/gtest.h>

TEST(ResourceTable, FindsAResourceByTheNameOfAKey)
{
    coResourceTable table;
    table.set_value("a", "1");
    coResourceKeyBase const key("a");
    auto const found = table.lookup_resource(&key);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->key->name, utString("a"));
    EXPECT_EQ(found->value_text(), utString("1"));
}

TEST(ResourceTable, HasNothingForAnotherNameOrANullKey)
{
    coResourceTable table;
    table.set_value("a", "1");
    coResourceKeyBase const key("b");
    EXPECT_FALSE(table.lookup_resource(&key));
    EXPECT_FALSE(table.lookup_resource(nullptr));
    EXPECT_TRUE(table.value("b").invalid());
}

TEST(ResourceTable, TellsNamesApartByCase)
{
    coResourceTable table;
    table.set_value("name", "1");
    table.set_value("Name", "2");
    EXPECT_EQ(table.count(), 2);
    EXPECT_EQ(table.value("name"), utString("1"));
}

TEST(ResourceTable, KeepsAResourceInPlaceWhileOthersComeAndGo)
{
    coResourceTable table;
    table.set_value("m", "1");
    coResourceKeyBase const key("m");
    auto const before = table.lookup_resource(&key);
    for (int i = 0; i < 1000; ++i)
        table.set_value("n" + std::to_string(i), "x");
    table.remove("n5");
    table.set_value("m", "2");
    EXPECT_EQ(table.lookup_resource(&key), before);
    EXPECT_EQ(before->value_text(), utString("2"));
}

TEST(ResourceTable, CopiesWithResourcesOfItsOwn)
{
    coResourceTable table;
    table.set_value("a", "1");
    coResourceTable const copy(table);
    table.set_value("a", "2");
    coResourceKeyBase const key("a");
    EXPECT_EQ(copy.value("a"), utString("1"));
    EXPECT_NE(copy.lookup_resource(&key)->key, table.lookup_resource(&key)->key);
}

TEST(ResourceTable, KeepsItsContentWhenAssignedToItself)
{
    coResourceTable table;
    table.set_value("a", "1");
    auto & same = table;
    table = same;
    EXPECT_EQ(table.value("a"), utString("1"));
}

TEST(ResourceTable, DropsWhatItHeldWhenAssignedTo)
{
    coResourceTable table;
    table.set_value("a", "1");
    table = coResourceTable();
    EXPECT_TRUE(table.empty());
}

TEST(ResourceTable, RevisionTellsContentsApart)
{
    coResourceTable table;
    EXPECT_EQ(table.revision(), coResourceTable().revision());
    table.set_value("a", "1");
    auto const first = table.revision();
    EXPECT_NE(first, coResourceTable().revision());
    coResourceTable copy = table;
    EXPECT_EQ(copy.revision(), first);
    copy.set_value("a", "2");
    EXPECT_NE(copy.revision(), first);
    EXPECT_EQ(table.revision(), first);
    table.remove("b");
    EXPECT_EQ(table.revision(), first);
    table.remove("a");
    EXPECT_NE(table.revision(), first);
}
