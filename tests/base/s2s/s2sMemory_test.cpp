#include <gtest/gtest.h>

#include "kit/kitTempFolder.h"
#include "s2s/s2sMemory.h"
#include "s2s/s2sVmr2vmr.h"

namespace {

constexpr std::uint64_t kilobyte = 1024;
constexpr std::uint64_t gigabyte = 1024 * 1024 * kilobyte;

/// A system with 16 GB, of which 12 could be had.
class Memory : public ::testing::Test {
protected:
    Memory() { write("proc/meminfo", "MemTotal:  16777216 kB\nMemFree: 9 kB\nMemAvailable: 12582912 kB\n"); }

    void write(std::string const & file, std::string const & text) { root.write(file, text); }
    void expect(std::uint64_t total, std::uint64_t available) const
    {
        auto const memory = s2s_memory(root.path());
        EXPECT_EQ(memory.total, total);
        EXPECT_EQ(memory.available, available);
    }

    kitTempFolder const root;
};

TEST(MemoryOfThisMachine, IsNeverMoreThanThereIs)
{
    auto const memory = s2s_memory();
    EXPECT_GT(memory.available, 0u);
    EXPECT_LE(memory.available, memory.total);
}

TEST_F(Memory, IsThatOfTheMachineWithoutGroups)
{
    expect(16 * gigabyte, 12 * gigabyte);
    write("proc/self/cgroup", "0::/user\n");
    write("sys/fs/cgroup/user/memory.max", "max\n");
    write("sys/fs/cgroup/user/memory.current", "1000\n");
    expect(16 * gigabyte, 12 * gigabyte);
}

TEST_F(Memory, IsThatOfAUnifiedGroupAndGivesUpWhatLiesIdle)
{
    write("proc/self/cgroup", "0::/a/b\n");
    write("sys/fs/cgroup/a/memory.max", std::to_string(4 * gigabyte));
    write("sys/fs/cgroup/a/memory.current", std::to_string(3 * gigabyte));
    write("sys/fs/cgroup/a/memory.stat", "anon 5\ninactive_file " + std::to_string(gigabyte) + "\n");
    write("sys/fs/cgroup/a/b/memory.max", std::to_string(8 * gigabyte));
    write("sys/fs/cgroup/a/b/memory.current", std::to_string(kilobyte));
    expect(4 * gigabyte, 2 * gigabyte);
}

TEST_F(Memory, IsThatOfASeparateGroupAlsoInsideAContainer)
{
    write("proc/self/cgroup", "5:cpu,cpuacct:/x\n4:memory:/seen/from/outside\n0::/\n");
    write("sys/fs/cgroup/memory/memory.limit_in_bytes", std::to_string(2 * gigabyte));
    write("sys/fs/cgroup/memory/memory.usage_in_bytes", std::to_string(gigabyte));
    write("sys/fs/cgroup/memory/memory.stat", "cache 1\ntotal_inactive_file 1024\n");
    expect(2 * gigabyte, gigabyte + kilobyte);
}

TEST_F(Memory, IsUsedUpWhereAGroupHasMoreThanItsLimit)
{
    write("proc/self/cgroup", "0::/\n");
    write("sys/fs/cgroup/memory.max", std::to_string(gigabyte));
    write("sys/fs/cgroup/memory.current", std::to_string(2 * gigabyte));
    expect(gigabyte, 0);
}

TEST_F(Memory, IsNotKnownWhereTheSystemDoesNotTell)
{
    EXPECT_EQ(s2s_memory(root / "nothing").available, 0u);
    EXPECT_EQ(s2s_memory_share({}, 1), 0u);
}

TEST(MemoryShare, IsTwoThirdsOfWhatIsFreeDividedByTheHosts)
{
    EXPECT_EQ(s2s_memory_share({20 * gigabyte, 15 * gigabyte}, 1), 10 * gigabyte);
    EXPECT_EQ(s2s_memory_share({20 * gigabyte, 15 * gigabyte}, 5), 2 * gigabyte);
    EXPECT_EQ(s2s_memory_share({16 * gigabyte, 12 * kilobyte}, 4), gigabyte / 2);
}

TEST(MemoryShare, AllowsOneMoreFromAQuarterOn)
{
    EXPECT_TRUE(s2s_memory_for_one_more({100, 25}));
    EXPECT_FALSE(s2s_memory_for_one_more({100, 24}));
}

TEST(MemoryShare, IsShortBelowAnEighth)
{
    EXPECT_FALSE(s2s_memory_is_short({800, 100}));
    EXPECT_TRUE(s2s_memory_is_short({800, 99}));
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
