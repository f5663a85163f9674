#include "wxt/wxtFrustrum.h"

#include <gtest/gtest.h>

#include <cstdlib>

TEST(Frustrum, GivesOperationsThatReachThePlatform)
{
    wxtFrustrum const platform;
    EXPECT_TRUE(platform.file_operations()->is_directory(L"/"));
    EXPECT_GT(platform.process_thread_operations()->process_id(), 0);
    EXPECT_FALSE(platform.process_environment_operations()->executable_path().empty());
    EXPECT_FALSE(platform.process_environment_operations()->current_directory().empty());

    auto const lock = platform.synch_operations()->make_lock();
    ASSERT_TRUE(lock);
    lock->enter();
    lock->enter();
    lock->leave();
    lock->leave();

    utString error;
    EXPECT_EQ(platform.library_loader_operations()->load(L"/no/such/module.so", error), nullptr);
    EXPECT_FALSE(error.empty());
}

TEST(Frustrum, GivesTheSameOperationsEveryTime)
{
    wxtFrustrum const platform;
    EXPECT_EQ(platform.file_operations().get(), platform.file_operations().get());
    EXPECT_EQ(platform.synch_operations().get(), platform.synch_operations().get());
}

TEST(Frustrum, RunsABodyOnAThreadOfItsOwn)
{
    wxtFrustrum const platform;
    std::thread::id inner;
    auto thread =
        platform.process_thread_operations()->start_thread([&] { inner = std::this_thread::get_id(); });
    ASSERT_TRUE(thread.joinable());
    auto const outer = thread.get_id();
    thread.join();
    EXPECT_EQ(inner, outer);
    EXPECT_NE(inner, std::this_thread::get_id());
}
