#include <gtest/gtest.h>

#include "s2s/s2sSilence.h"

namespace {

using std::chrono::milliseconds;

class Silence : public ::testing::Test {
protected:
    /// A line comes at that time.
    void hear(std::string const & line, int time)
    {
        silence.hear(s2s_parse_host_event(line), line);
        silence.settle(at(time));
    }
    s2sSilence::Clock::time_point at(int time) const { return begin + milliseconds(time); }
    int left(int time) const { return static_cast<int>(silence.left(at(time)).value().count()); }

    std::string const message = R"({"event":"message","stream":"output","domain":"d","key":"one","args":[]})";
    std::string const other = R"({"event":"message","stream":"output","domain":"d","key":"two","args":[]})";
    s2sSilence::Clock::time_point const begin{};
    s2sSilence silence{milliseconds(100), begin};
};

TEST_F(Silence, LastsAsLongAsThePatience)
{
    EXPECT_EQ(left(30), 70);
    EXPECT_FALSE(silence.too_long(at(99)));
    EXPECT_TRUE(silence.too_long(at(100)));
    EXPECT_EQ(left(1000), 0);
}

TEST_F(Silence, BeginsAgainWithWhatIsNew)
{
    hear(message, 50);
    EXPECT_EQ(left(50), 100);
    hear(other, 60);
    EXPECT_EQ(left(60), 100);
    hear(R"({"event":"file","path":"p","direction":"writing"})", 70);
    EXPECT_EQ(left(70), 100);
    hear(R"({"event":"progress","percent":0})", 80);
    EXPECT_EQ(left(80), 100);
    hear(R"({"event":"progress","percent":1})", 90);
    EXPECT_EQ(left(90), 100);
}

TEST_F(Silence, GoesOnThroughWhatIsNothingNew)
{
    hear(R"({"event":"progress","percent":20})", 0);
    hear(message, 0);
    hear(R"({"event":"progress","percent":20})", 50);
    hear(R"({"event":"progress","percent":19})", 60);
    hear(message, 70);
    hear("nonsense", 80);
    hear("other nonsense", 90);
    EXPECT_EQ(left(90), 10);
}

TEST_F(Silence, BeginsWhenWhatIsNewHasBeenPassedOn)
{
    silence.hear(s2s_parse_host_event(message), message);
    silence.settle(at(5000));
    EXPECT_EQ(left(5000), 100);
}

TEST_F(Silence, MayLastForEver)
{
    s2sSilence const any(std::nullopt, begin);
    EXPECT_EQ(any.left(at(1000000)), std::nullopt);
    EXPECT_FALSE(any.too_long(at(1000000)));
}

} // namespace
