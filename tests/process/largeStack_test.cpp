#include "process/largeStack.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <thread>

namespace {

/// Takes so many kilobytes of the stack.
int use(int kilobytes)
{
    char volatile place[1024] = {1};
    return kilobytes <= 0 ? 0 : place[0] + use(kilobytes - 1);
}

void allow_stack(rlim_t kilobytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_STACK, &limit);
    limit.rlim_cur = kilobytes * 1024;
    setrlimit(RLIMIT_STACK, &limit);
}

constexpr int much = 5000;

} // namespace

TEST(LargeStack, GivesBackWhatTheWorkGives)
{
    EXPECT_EQ(run_on_large_stack([] { return 7; }), 7);
    EXPECT_EXIT(
        {
            allow_stack(64);
            std::_Exit(run_on_large_stack([] { return 7; }));
        },
        testing::ExitedWithCode(7), "");
}

TEST(LargeStack, IsThereForWorkThatNeedsMore)
{
    EXPECT_EXIT(
        {
            allow_stack(64);
            std::_Exit(run_on_large_stack([] { return use(much) == much ? 3 : 4; }));
        },
        testing::ExitedWithCode(3), "");
}

TEST(LargeStack, IsThereForThreads)
{
    EXPECT_EXIT(
        {
            allow_stack(64);
            std::_Exit(run_on_large_stack([] {
                int used = 0;
                std::thread([&] { used = use(much); }).join();
                return used == much ? 3 : 4;
            }));
        },
        testing::ExitedWithCode(3), "");
}

TEST(LargeStack, LetsExceptionsThrough)
{
    EXPECT_EXIT(
        {
            allow_stack(64);
            std::_Exit(run_on_large_stack([] {
                try {
                    throw 3;
                } catch (int number) {
                    return number;
                }
            }));
        },
        testing::ExitedWithCode(3), "");
}
