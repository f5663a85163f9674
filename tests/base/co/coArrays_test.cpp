#include <gtest/gtest.h>
#include <memory>

#include "co/coPointers.h"
#include "co/coStrings.h"

template <class Array>
class Arrays : public testing::Test {
};
using ArrayTypes = testing::Types<utStringcoPageArr, utStringcoDynArr>;
TYPED_TEST_SUITE(Arrays, ArrayTypes);

TYPED_TEST(Arrays, AppendsAndCounts)
{
    TypeParam array;
    EXPECT_TRUE(array.empty());
    array.append("a");
    array.append("b");
    EXPECT_EQ(array.count(), 2);
    EXPECT_EQ(array[1], utString("b"));
    array.clear();
    EXPECT_EQ(array.count(), 0);
}

TYPED_TEST(Arrays, GrowsToAnIndexBeyondItsEndAndNeverShrinks)
{
    TypeParam array;
    array.at_grow(2) = "c";
    EXPECT_EQ(array.count(), 3);
    EXPECT_TRUE(array[0].empty());
    array.at_grow(0) = "a";
    EXPECT_EQ(array.count(), 3);
    EXPECT_EQ(array[0], utString("a"));
    EXPECT_EQ(array[2], utString("c"));
}

TYPED_TEST(Arrays, RemovesAnElementFromTheMiddle)
{
    TypeParam array{"a", "b", "c"};
    array.remove(1);
    EXPECT_EQ(array.count(), 2);
    EXPECT_EQ(array[1], utString("c"));
}

TYPED_TEST(Arrays, CopiesItsElements)
{
    TypeParam const array{"a", "b"};
    TypeParam copy = array;
    copy[0] = "x";
    EXPECT_EQ(array[0], utString("a"));
}

TYPED_TEST(Arrays, AreWalkedByAnIteratorThatStandsBeforeTheFirst)
{
    TypeParam const array{"a", "b"};
    typename TypeParam::coIterator at(array);
    std::string walked;
    while (++at)
        walked += at().str() + std::to_string(at.index());
    EXPECT_EQ(walked, "a0b1");
    TypeParam const empty;
    typename TypeParam::coIterator none(empty);
    EXPECT_FALSE(++none);
}

TYPED_TEST(Arrays, AreWalkedByARangeLoop)
{
    TypeParam array{"a", "b"};
    for (auto & text : array)
        text << "!";
    EXPECT_EQ(array[1], utString("b!"));
}

TEST(PageArr, KeepsReferencesValidWhileItGrows)
{
    coPageArr<int> array;
    array.append(7);
    int const & first = array[0];
    for (int i = 0; i < 10000; ++i)
        array.append(i);
    EXPECT_EQ(&first, &array[0]);
    EXPECT_EQ(first, 7);
}

TEST(PageArr, IsABaseForClassesThatAreLists)
{
    struct List : utStringcoPageArr {};
    List list;
    list.append("file");
    EXPECT_EQ(list.count(), 1);
}

TEST(PageArr, HoldsWhatCanOnlyBeMoved)
{
    coPageArr<coPrg<int>> array;
    array.append(std::make_unique<int>(5));
    EXPECT_EQ(*array[0], 5);
}

TEST(DynArr, InsertsBeforeAnIndex)
{
    utStringcoDynArr array{"a", "c"};
    array.insert(1, "b");
    array.insert(3, "d");
    EXPECT_EQ(array[1], utString("b"));
    EXPECT_EQ(array[3], utString("d"));
}
