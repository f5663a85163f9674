#include "host/hostMemory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/resource.h>

namespace {

constexpr std::uint64_t gigabyte = 1ULL << 30;

// Each test runs in a process of its own, which keeps its limits.
class HostMemory : public testing::Test {
protected:
    void SetUp() override
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        GTEST_SKIP() << "sanitizers reserve more address space than any limit allows";
#endif
    }
};

[[noreturn]] void leave(bool good)
{
    std::_Exit(good ? 0 : 1);
}

} // namespace

TEST_F(HostMemory, IsWhatWasAllowedLast)
{
    EXPECT_EXIT(
        {
            host_limit_memory(4 * gigabyte);
            bool const first = host_memory_limit() == 4 * gigabyte;
            host_limit_memory(6 * gigabyte);
            leave(first && host_memory_limit() == 6 * gigabyte && !host_memory_ran_out());
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(HostMemory, IsNeverMoreThanWasGivenFromOutside)
{
    EXPECT_EXIT(
        {
            rlimit limit{};
            ::getrlimit(RLIMIT_DATA, &limit);
            limit.rlim_cur = 5 * gigabyte;
            ::setrlimit(RLIMIT_DATA, &limit);
            host_limit_memory(4 * gigabyte);
            host_limit_memory(6 * gigabyte);
            leave(host_memory_limit() == 5 * gigabyte);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(HostMemory, OfAForkIsHalfOfWhatIsNotTakenYet)
{
    EXPECT_EXIT(
        {
            host_limit_memory(8 * gigabyte);
            host_limit_memory_of_fork(host_memory_taken());
            leave(host_memory_limit() > 4 * gigabyte && host_memory_limit() < 6 * gigabyte);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(HostMemory, OfAForkWithoutALimitHasNone)
{
    EXPECT_EXIT(
        {
            host_limit_memory(0);
            host_limit_memory_of_fork(host_memory_taken());
            leave(host_memory_limit() == 0);
        },
        testing::ExitedWithCode(0), "");
}
