#include "co/coQueue.h"

#include <gtest/gtest.h>

#include "co/coPointers.h"

TEST(Queue, GivesBackInTheOrderOfArrival)
{
    coQueue<int> queue;
    queue.append(1);
    queue.append(2);
    EXPECT_EQ(queue.count(), 2);
    EXPECT_EQ(queue.first(), 1);
    EXPECT_EQ(queue.take_first(), 1);
    queue.append(3);
    EXPECT_EQ(queue.take_first(), 2);
    EXPECT_EQ(queue.take_first(), 3);
    EXPECT_TRUE(queue.empty());
}

TEST(Queue, PassesOwnershipOn)
{
    coQueue<coPrg<int>> queue;
    queue.append(std::make_unique<int>(5));
    auto const taken = queue.take_first();
    EXPECT_EQ(*taken, 5);
    queue.append(std::make_unique<int>(6));
    queue.clear();
    EXPECT_TRUE(queue.empty());
}
