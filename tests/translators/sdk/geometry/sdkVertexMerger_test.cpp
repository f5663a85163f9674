#include "sdk/geometry/sdkVertexMerger.h"

#include <gtest/gtest.h>

TEST(VertexMerger, MergesEqualPointsOnlyWithoutATolerance)
{
    sdkVertexMerger merger(0, 4);
    EXPECT_EQ(merger.add({1, 2, 3}), 0);
    EXPECT_EQ(merger.add({1, 2, 3.0000001}), 1);
    EXPECT_EQ(merger.add({1, 2, 3}), 0);
    EXPECT_EQ(merger.points().size(), 2U);
    EXPECT_EQ(merger.moved(), 0);
}

TEST(VertexMerger, TakesZeroAndNegativeZeroForOne)
{
    sdkVertexMerger merger(0, 0);
    EXPECT_EQ(merger.add({0.0, 0, 0}), merger.add({-0.0, 0, 0}));
}

TEST(VertexMerger, MergesPointsWithinTheToleranceWhereverCellsEnd)
{
    // Steps that are no multiple of the size of a cell visit all places near the ends of cells.
    for (double x = -3; x < 3; x += 0.037) {
        sdkVertexMerger merger(0.1, 0);
        EXPECT_EQ(merger.add({x, -x, x}), 0);
        EXPECT_EQ(merger.add({x + 0.05, -x - 0.05, x + 0.05}), 0) << x;
        EXPECT_EQ(merger.add({x + 0.11, -x, x}), 1) << x;
        EXPECT_EQ(merger.moved(), 1);
    }
}

TEST(VertexMerger, DoesNotLetChainsOfPointsGrowTogether)
{
    sdkVertexMerger merger(1, 0);
    for (int step = 0; step <= 10; ++step) {
        merger.add({0.9 * step, 0, 0});
    }
    EXPECT_EQ(merger.points().size(), 6U);
}
