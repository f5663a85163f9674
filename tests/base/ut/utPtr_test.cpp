#include "ut/utPtr.h"

#include <gtest/gtest.h>

TEST(ObserverPtr, LooksAtAnObjectWithoutOwningIt)
{
    int value = 3;
    utObserverPtr<int> const pointer(&value);
    *pointer = 4;
    EXPECT_EQ(value, 4);
    EXPECT_EQ(pointer.get(), &value);
    EXPECT_TRUE(pointer);
}

TEST(ObserverPtr, IsNullAtFirstAndGainsConst)
{
    utObserverPtr<int> const empty;
    EXPECT_FALSE(empty);
    int value = 3;
    utObserverPtr<int const> const constant = utObserverPtr<int>(&value);
    EXPECT_EQ(*constant, 3);
}
