#include "ap/apThread.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <unistd.h>

#include "ap/apPosixOperations.h"

namespace {

struct Task : apIThreadTask {
    explicit Task(std::function<void()> body) : m_body(std::move(body)) {}
    void run() override { m_body(); }
    std::function<void()> m_body;
};

struct NoThreads : apIProcessThreadOperations {
    std::thread start_thread(std::function<void()>) const override { return {}; }
    int process_id() const override { return 0; }
};

} // namespace

TEST(Thread, RunsItsTaskFromItsConstructionOn)
{
    apPosixProcessThreadOperations const operations;
    std::promise<std::thread::id> promise;
    apThread thread(std::make_shared<Task>([&] { promise.set_value(std::this_thread::get_id()); }),
                    &operations);
    EXPECT_TRUE(thread.started());
    EXPECT_NE(promise.get_future().get(), std::this_thread::get_id());
    thread.join();
    thread.join();
}

TEST(Thread, WaitsForItsTaskAtItsEnd)
{
    std::promise<void> go;
    std::atomic<bool> done = false;
    {
        apThread const thread(std::make_shared<Task>([&] {
                                  go.get_future().wait();
                                  done = true;
                              }),
                              nullptr);
        go.set_value();
    }
    EXPECT_TRUE(done);
}

TEST(Thread, SharesTheOwnershipOfItsTask)
{
    auto task = std::make_shared<Task>([] {});
    std::weak_ptr<Task> const watch = task;
    apThread thread(std::move(task), nullptr);
    thread.join();
    EXPECT_TRUE(watch.expired());
}

TEST(Thread, TellsWhenTheSystemHasNoneToGive)
{
    NoThreads const operations;
    apThread thread(std::make_shared<Task>([] { FAIL(); }), &operations);
    EXPECT_FALSE(thread.started());
    thread.join();
}

TEST(Process, KnowsItsNumber)
{
    EXPECT_EQ(apPosixProcessThreadOperations().process_id(), getpid());
}
