#include "co/coDList.h"

#include <gtest/gtest.h>
#include <string>

#include "co/coPointers.h"

namespace {

std::string joined(coDList<int> const & list)
{
    std::string text;
    for (int i = 0; i < list.count(); ++i)
        text += std::to_string(list[i]);
    return text;
}

coDList<int> numbers(int count)
{
    coDList<int> list;
    for (int i = 0; i < count; ++i)
        list.append(i);
    return list;
}

} // namespace

TEST(DList, IsReachedByIndexInAnyOrder)
{
    auto const list = numbers(6);
    EXPECT_EQ(list[5], 5);
    EXPECT_EQ(list[0], 0);
    EXPECT_EQ(list[3], 3);
    EXPECT_EQ(list[3], 3);
    EXPECT_EQ(list[2], 2);
}

TEST(DList, InsertsAtTheFrontInTheMiddleAndAtTheEnd)
{
    auto list = numbers(2);
    EXPECT_EQ(list[1], 1);
    list.insert(0, 7);
    list.insert(2, 8);
    list.insert(4, 9);
    EXPECT_EQ(joined(list), "70819");
    coDList<int> empty;
    empty.insert(0, 1);
    EXPECT_EQ(joined(empty), "1");
}

TEST(DList, RemovesTheElementUnderTheCursor)
{
    auto list = numbers(4);
    EXPECT_EQ(list[2], 2);
    list.remove(2);
    EXPECT_EQ(joined(list), "013");
    list.remove(2);
    list.remove(0);
    EXPECT_EQ(joined(list), "1");
    list.remove(0);
    EXPECT_TRUE(list.empty());
    list.append(5);
    EXPECT_EQ(list[0], 5);
}

TEST(DList, GivesItsCopyACursorOfItsOwn)
{
    auto list = numbers(3);
    EXPECT_EQ(list[2], 2);
    auto copy = list;
    list.clear();
    EXPECT_EQ(joined(copy), "012");
    list = copy;
    copy.clear();
    EXPECT_EQ(joined(list), "012");
}

TEST(DList, LeavesAnEmptyListBehindWhenMoved)
{
    auto list = numbers(3);
    EXPECT_EQ(list[1], 1);
    auto const moved = std::move(list);
    EXPECT_EQ(joined(moved), "012");
    EXPECT_EQ(list.count(), 0); // NOLINT(bugprone-use-after-move): this is what the test is about
    list.append(4);
    EXPECT_EQ(list[0], 4);
}

TEST(DList, OwnsWhatItsHandlesOwn)
{
    coDList<coPrg<int>> list;
    list.append(std::make_unique<int>(1));
    list.append(std::make_unique<int>(2));
    list.remove(0);
    EXPECT_EQ(*list[0], 2);
    auto const shared = std::make_shared<int>(3);
    coDList<coPrf<int>> sharing;
    sharing.append(shared);
    EXPECT_EQ(shared.use_count(), 2);
    sharing.clear();
    EXPECT_EQ(shared.use_count(), 1);
}

TEST(DList, IsWalkedInOrder)
{
    auto const list = numbers(3);
    coDList<int>::coIterator at(list);
    int sum = 0;
    while (++at)
        sum = sum * 10 + at();
    EXPECT_EQ(sum, 12);
}
