#include "sdk/sdkParallel.h"

#include "translators/kit/kitIndicator.h"

#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

TEST(Parallel, DoesEachPieceOnce)
{
    for (int const threads : {0, 1, 2, 7}) {
        std::vector<std::atomic<int>> done(100);
        EXPECT_TRUE(sdk_in_parallel(100, threads, [&](int at) { ++done[static_cast<std::size_t>(at)]; }));
        for (auto const & times : done) {
            EXPECT_EQ(times, 1);
        }
    }
}

TEST(Parallel, HasNothingToDoForNothing)
{
    EXPECT_TRUE(sdk_in_parallel(0, 4, [](int) { FAIL(); }));
}

TEST(Parallel, WorksInAsManyThreadsAsAskedFor)
{
    // Each waits for the other: one thread alone would stay here for ever.
    std::atomic<int> begun{0};
    EXPECT_TRUE(sdk_in_parallel(2, 2, [&](int) {
        ++begun;
        while (begun < 2) {
            std::this_thread::yield();
        }
    }));
}

TEST(Parallel, ThrowsWhatAPieceThrows)
{
    std::atomic<int> done{0};
    EXPECT_THROW(sdk_in_parallel(1000, 2,
                                 [&](int at) {
                                     ++done;
                                     if (at == 3) {
                                         throw std::runtime_error("third");
                                     }
                                 }),
                 std::runtime_error);
    EXPECT_GE(done, 1);
}

TEST(Parallel, StopsWhenTheUserCancels)
{
    Handle(kitIndicator) const indicator = new kitIndicator;
    indicator->cancelled = true;
    int done = 0;
    EXPECT_FALSE(sdk_in_parallel(
        1000, 1, [&](int) { ++done; }, indicator->Start()));
    EXPECT_EQ(done, 1);
}
