#include "sdb/sdbStringTable.h"

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

TEST(StringTable, GivesTheKeyOfANumberWithItsContext)
{
    sdbStringTable table("table one");
    table.add_string(1016, "d.file_filter_all::All files");
    EXPECT_EQ(sdbStringTable::find_string("table one", 1016), utString("d.file_filter_all::All files"));
}

TEST(StringTable, GivesAnEmptyTextForANumberThatItLacks)
{
    sdbStringTable table("table two");
    table.add_string(1, "one");
    auto const text = sdbStringTable::find_string("table two", 2);
    EXPECT_TRUE(text.empty());
    EXPECT_FALSE(text.invalid());
    EXPECT_TRUE(sdbStringTable::find_string("no such table", 1).empty());
    EXPECT_TRUE(sdbStringTable::find_string(nullptr, 1).empty());
}

TEST(StringTable, KeepsDomainsApart)
{
    sdbStringTable first("table three");
    sdbStringTable second("table four");
    first.add_string(1, "first");
    second.add_string(1, "second");
    EXPECT_EQ(sdbStringTable::find_string("table three", 1), utString("first"));
    EXPECT_EQ(sdbStringTable::find_string("table four", 1), utString("second"));
}

TEST(StringTable, StaysWhenTheObjectThatFilledItIsGone)
{
    auto table = std::make_unique<sdbStringTable>("table five");
    table->add_string(7, "seven");
    table.reset();
    EXPECT_EQ(sdbStringTable::find_string("table five", 7), utString("seven"));
}

TEST(StringTable, TakesTheTextThatWasAddedLast)
{
    sdbStringTable table("table six");
    table.add_string(1, "old");
    table.add_string(1, "new");
    table.add_string(2, nullptr);
    EXPECT_EQ(sdbStringTable::find_string("table six", 1), utString("new"));
    EXPECT_TRUE(sdbStringTable::find_string("table six", 2).empty());
}

TEST(StringTable, IsReadFromSeveralThreadsAtOnce)
{
    sdbStringTable table("table seven");
    for (unsigned id = 0; id < 100; ++id)
        table.add_string(id, std::to_string(id).c_str());
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&wrong] {
            for (unsigned id = 0; id < 100; ++id)
                wrong += sdbStringTable::find_string("table seven", id) != utString(std::to_string(id));
        });
    }
    for (auto & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}
