#include "co/itIterator.h"

#include <gtest/gtest.h>
#include <string>

TEST(Iterator, IsUndefinedWithoutAWalk)
{
    itIterator<int> at;
    EXPECT_TRUE(at.undefined());
    EXPECT_FALSE(++at);
}

TEST(Iterator, StandsBeforeTheFirstElement)
{
    auto at = it_iterator_over(std::vector<std::string>{"a", "b"});
    EXPECT_FALSE(at.undefined());
    ASSERT_TRUE(++at);
    EXPECT_EQ(at(), "a");
    ASSERT_TRUE(++at);
    EXPECT_EQ(at(), "b");
    EXPECT_FALSE(++at);
    EXPECT_FALSE(++at);
}

TEST(Iterator, IsDefinedOverNothing)
{
    auto at = it_iterator_over(std::vector<int>());
    EXPECT_FALSE(at.undefined());
    EXPECT_FALSE(++at);
}

TEST(Iterator, WalksOnItsOwnAfterACopy)
{
    auto at = it_iterator_over(std::vector<int>{1, 2, 3});
    ++at;
    auto copy = at;
    ++at;
    ++at;
    EXPECT_EQ(at(), 3);
    EXPECT_EQ(copy(), 1);
    ++copy;
    EXPECT_EQ(copy(), 2);
    copy = at;
    EXPECT_EQ(copy(), 3);
}

TEST(Iterator, IsUnaffectedByChangesOfWhatItWasMadeFrom)
{
    std::vector<int> values{1};
    auto at = it_iterator_over(values);
    values[0] = 2;
    ++at;
    EXPECT_EQ(at(), 1);
}

TEST(Iterator, GivesItsWalkBackAtTheEnd)
{
    struct Walk : itIteratorObject<int> {
        explicit Walk(int & count) : alive(count) { ++alive; }
        Walk(Walk const & other) : itIteratorObject<int>(other), alive(other.alive) { ++alive; }
        ~Walk() override { --alive; }
        bool undefined() const override { return true; }
        std::unique_ptr<itIteratorObject<int>> clone() const override
        {
            return std::make_unique<Walk>(*this);
        }
        bool operator++() override { return false; }
        int operator()() const override { return 0; }
        int & alive;
    };
    int alive = 0;
    {
        itIterator<int> const at(std::make_unique<Walk>(alive));
        auto const copy = at;
        EXPECT_EQ(alive, 2);
        EXPECT_TRUE(copy.undefined());
    }
    EXPECT_EQ(alive, 0);
}
