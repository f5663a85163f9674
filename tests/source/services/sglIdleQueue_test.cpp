#include "sglIdleQueue.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

class Item : public sglIdleItem {
public:
    Item(int result, std::function<void()> work) : m_result(result), m_work(std::move(work)) {}
    int execute() override
    {
        m_work();
        return m_result;
    }

private:
    int m_result;
    std::function<void()> m_work;
};

class IdleQueue : public testing::Test {
protected:
    void add(int result, std::function<void()> work)
    {
        queue.add_pending_item(utPtrClaim, new Item(result, std::move(work)));
    }

    sglIdleQueue queue;
    std::vector<int> done;
};

} // namespace

TEST_F(IdleQueue, GivesOneWhenItIsEmpty)
{
    EXPECT_EQ(queue.process_pending_item(), 1);
}

TEST_F(IdleQueue, DoesOneItemACallInTheOrderOfArrival)
{
    for (int i = 1; i <= 3; ++i)
        add(1, [this, i] { done.push_back(i); });
    EXPECT_TRUE(done.empty());
    queue.process_pending_item();
    EXPECT_EQ(done, std::vector<int>{1});
    EXPECT_EQ(queue.count(), 2);
    queue.process_pending_item();
    queue.process_pending_item();
    EXPECT_EQ(done, (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(queue.empty());
}

TEST_F(IdleQueue, GivesWhatTheItemGave)
{
    add(7, [] {});
    add(0, [] {});
    EXPECT_EQ(queue.process_pending_item(), 7);
    EXPECT_EQ(queue.process_pending_item(), 0);
    EXPECT_EQ(queue.process_pending_item(), 1);
}

TEST_F(IdleQueue, LeavesWhatAnItemAddsForALaterCall)
{
    add(1, [this] {
        add(1, [this] { done.push_back(2); });
        done.push_back(1);
    });
    queue.process_pending_item();
    EXPECT_EQ(done, std::vector<int>{1});
    EXPECT_EQ(queue.count(), 1);
    queue.process_pending_item();
    EXPECT_EQ(done, (std::vector<int>{1, 2}));
}

TEST_F(IdleQueue, GivesOneToAnItemThatCallsItAndDoesNothingElse)
{
    int from_within = 0;
    add(0, [&] { from_within = queue.process_pending_item(); });
    add(0, [this] { done.push_back(2); });
    EXPECT_EQ(queue.process_pending_item(), 0);
    EXPECT_EQ(from_within, 1);
    EXPECT_TRUE(done.empty());
    queue.process_pending_item();
    EXPECT_EQ(done, std::vector<int>{2});
}

TEST_F(IdleQueue, DeletesAnItemWhenItIsDoneWhileItStillCountsAsBusy)
{
    auto const alive = std::make_shared<int>(0);
    int at_deletion = 0;
    struct Deleted : sglIdleItem {
        Deleted(sglIdleQueue & the_queue, int & the_result) : queue(the_queue), result(the_result) {}
        ~Deleted() override { result = queue.process_pending_item(); }
        int execute() override { return 3; }
        sglIdleQueue & queue;
        int & result;
    };
    queue.add_pending_item(utPtrClaim, new Deleted(queue, at_deletion));
    add(5, [alive] {});
    EXPECT_EQ(queue.process_pending_item(), 3);
    EXPECT_EQ(at_deletion, 1);
    EXPECT_EQ(alive.use_count(), 2);
    EXPECT_EQ(queue.process_pending_item(), 5);
    EXPECT_EQ(alive.use_count(), 1);
}

TEST_F(IdleQueue, GoesOnAfterAnItemThatThrows)
{
    auto const alive = std::make_shared<int>(0);
    add(1, [alive] { throw std::runtime_error("of the test"); });
    EXPECT_THROW(queue.process_pending_item(), std::runtime_error);
    EXPECT_EQ(alive.use_count(), 1);
    add(9, [] {});
    EXPECT_EQ(queue.process_pending_item(), 9);
}

TEST(IdleQueueAtItsEnd, DeletesWhatStillWaits)
{
    auto const alive = std::make_shared<int>(0);
    {
        sglIdleQueue queue;
        queue.add_pending_item(utPtrClaim, new Item(1, [alive] {}));
        EXPECT_EQ(alive.use_count(), 2);
    }
    EXPECT_EQ(alive.use_count(), 1);
}

TEST(IdleQueueOfTheProgram, IsOneWhicheverThreadAsksFirst)
{
    std::vector<sglIdleQueue *> seen(8);
    std::vector<std::thread> threads;
    for (auto & queue : seen)
        threads.emplace_back([&queue] { queue = &sglIdleQueue::instance(); });
    for (auto & thread : threads)
        thread.join();
    for (auto const * const queue : seen)
        EXPECT_EQ(queue, &sglIdleQueue::instance());
}
