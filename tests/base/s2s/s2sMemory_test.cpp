#include <gtest/gtest.h>

#include "s2s/s2sMemory.h"
#include "s2s/s2sVmr2vmr.h"

namespace {

TEST(Memory, IsNeverMoreThanThereIs)
{
    EXPECT_GT(s2s_available_memory(), 0u);
    EXPECT_LE(s2s_available_memory(), s2s_physical_memory());
    EXPECT_EQ(s2sVmr2vmr().memory_limit(), s2s_physical_memory());
}

TEST(Memory, AllowsOneMoreFromAQuarterOn)
{
    EXPECT_TRUE(s2s_memory_for_one_more(25, 100));
    EXPECT_FALSE(s2s_memory_for_one_more(24, 100));
}

TEST(Memory, IsShortBelowAnEighth)
{
    EXPECT_FALSE(s2s_memory_is_short(100, 800));
    EXPECT_TRUE(s2s_memory_is_short(99, 800));
}

TEST(Vmr2vmr, AllowsOneHostAtLeast)
{
    s2sVmr2vmr context;
    EXPECT_GE(context.hosts(), 1);
    context.set_hosts(0);
    EXPECT_EQ(context.hosts(), 1);
    context.set_hosts(7);
    EXPECT_EQ(context.hosts(), 7);
}

} // namespace
