#include "ap/apCriticalSection.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "ap/apPosixOperations.h"

namespace {

struct CountingLock : apILock {
    explicit CountingLock(std::string & log) : m_log(log) {}
    void enter() override { m_log += "("; }
    void leave() override { m_log += ")"; }
    std::string & m_log;
};

struct CountingOperations : apISynchOperations {
    explicit CountingOperations(std::string & log) : m_log(log) {}
    std::unique_ptr<apILock> make_lock() const override { return std::make_unique<CountingLock>(m_log); }
    std::string & m_log;
};

} // namespace

TEST(CriticalSection, UsesTheLockOfItsOperations)
{
    std::string log;
    CountingOperations const operations(log);
    apCriticalSection section(&operations);
    section.enter();
    {
        apCriticalSectionScope const scope(section);
        log += "x";
    }
    section.leave();
    EXPECT_EQ(log, "((x))");
}

TEST(CriticalSection, MayBeEnteredAgainByItsThread)
{
    apPosixSynchOperations const operations;
    apCriticalSection section(&operations);
    apCriticalSectionScope const outer(section);
    apCriticalSectionScope const inner(section);
    SUCCEED();
}

TEST(CriticalSection, LetsOneThreadInAtATime)
{
    for (bool const with_operations : {true, false}) {
        apPosixSynchOperations const operations;
        apCriticalSection section(with_operations ? &operations : nullptr);
        int counter = 0;
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&] {
                for (int n = 0; n < 5000; ++n) {
                    apCriticalSectionScope const scope(section);
                    ++counter;
                }
            });
        for (auto & thread : threads)
            thread.join();
        EXPECT_EQ(counter, 20000);
    }
}
