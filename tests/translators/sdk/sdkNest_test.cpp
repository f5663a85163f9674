#include "sdk/sdkNest.h"

#include <gtest/gtest.h>

TEST(SdkNest, CountsWhatAThingStandsForWhenItIsSpreadOut)
{
    sdkNest nest(3);
    nest.weigh(2, 6);
    nest.use(0, 1);
    nest.use(0, 1);
    nest.use(1, 2);
    nest.use(1, 2);
    nest.take();
    EXPECT_TRUE(nest.cycle().empty());
    EXPECT_EQ(nest.depth(), 3);
    EXPECT_EQ(nest.spread(1), 13);
    EXPECT_EQ(nest.largest_spread(), 27);
}

TEST(SdkNest, CountsNoFurtherThanANumberCan)
{
    constexpr std::size_t levels = 200;
    sdkNest nest(levels);
    for (std::size_t level = 0; level + 1 < levels; ++level) {
        nest.use(level, level + 1);
        nest.use(level, level + 1);
    }
    nest.take();
    EXPECT_EQ(nest.largest_spread(), 1'000'000'000'000'000'000);
}

TEST(SdkNest, GoesDownAnyNumberOfLevels)
{
    constexpr std::size_t levels = 1'000'000;
    sdkNest nest(levels);
    for (std::size_t level = 0; level + 1 < levels; ++level) {
        nest.use(level, level + 1);
    }
    nest.take();
    EXPECT_EQ(nest.depth(), static_cast<int>(levels));
}

TEST(SdkNest, NamesTheThingsOfACycleInTheirOrder)
{
    sdkNest nest(4);
    nest.use(0, 1);
    nest.use(1, 2);
    nest.use(2, 3);
    nest.use(3, 1);
    nest.take();
    EXPECT_EQ(nest.cycle(), (std::vector<std::size_t>{1, 2, 3}));
    sdkNest self(1);
    self.use(0, 0);
    self.take();
    EXPECT_EQ(self.cycle(), std::vector<std::size_t>{0});
}
