#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "s2s/s2sHostLink.h"
#include "s2s/s2sWakeUp.h"

namespace {

using std::chrono::milliseconds;

void wait_for(s2sHostLink & link, std::optional<milliseconds> timeout = std::nullopt)
{
    s2sHostLink * const links[] = {&link};
    s2s_wait_for(links, -1, timeout);
}

class HostLink : public ::testing::Test {
protected:
    HostLink() { EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, m_ends), 0); }
    ~HostLink() override
    {
        close(m_ends[0]);
        close_other();
    }

    int own() const { return m_ends[0]; }
    int other() const { return m_ends[1]; }
    void close_other()
    {
        if (m_ends[1] >= 0)
            close(m_ends[1]);
        m_ends[1] = -1;
    }
    void say(std::string_view text) const
    {
        EXPECT_EQ(write(other(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

private:
    int m_ends[2] = {-1, -1};
};

TEST_F(HostLink, CutsWhatComesAtTheLineEnds)
{
    s2sHostLink link(own());
    say("one\ntwo\nthr");
    wait_for(link);
    EXPECT_EQ(link.next_line(), "one");
    EXPECT_EQ(link.next_line(), "two");
    EXPECT_FALSE(link.next_line());
    say("ee\n\n");
    wait_for(link);
    EXPECT_EQ(link.next_line(), "three");
    EXPECT_EQ(link.next_line(), "");
    EXPECT_FALSE(link.next_line());
    EXPECT_FALSE(link.closed());
}

TEST_F(HostLink, GivesTheLastLinesBeforeItIsClosed)
{
    s2sHostLink link(own());
    say("last\nunfinished");
    close_other();
    wait_for(link);
    EXPECT_EQ(link.next_line(), "last");
    while (!link.closed())
        wait_for(link);
    EXPECT_FALSE(link.next_line());
}

TEST_F(HostLink, SendsWhenTheOtherSideTakes)
{
    s2sHostLink link(own());
    std::string const line(3000000, 'x');
    link.send(line);
    std::string got;
    std::string buffer(100000, '\0');
    while (got.size() < line.size() + 1) {
        wait_for(link, milliseconds(0));
        auto const count = recv(other(), buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (count > 0)
            got.append(buffer, 0, static_cast<std::size_t>(count));
    }
    EXPECT_EQ(got, line + "\n");
}

TEST_F(HostLink, RaisesNoSignalWhenTheOtherSideIsGone)
{
    s2sHostLink link(own());
    close_other();
    link.send("hello");
    while (!link.closed())
        wait_for(link);
    EXPECT_TRUE(link.closed());
}

TEST(HostLinkOfMessages, EndsTheTalkWhenALineCannotBeSent)
{
    int ends[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends), 0);
    s2sHostLink link(ends[0]);
    // More than one message can be.
    link.send(std::string(100'000'000, 'x'));
    wait_for(link, milliseconds(0));
    char byte = 0;
    EXPECT_EQ(recv(ends[1], &byte, 1, MSG_DONTWAIT), 0);
    EXPECT_EQ(send(ends[1], "later\n", 6, 0), 6);
    wait_for(link);
    EXPECT_EQ(link.next_line(), "later");
    close(ends[0]);
    close(ends[1]);
}

TEST_F(HostLink, WakesUp)
{
    s2sWakeUp wake_up;
    s2sHostLink link(own());
    wake_up.set();
    s2sHostLink * const links[] = {&link};
    s2s_wait_for(links, wake_up.descriptor(), std::nullopt);
    EXPECT_FALSE(link.next_line());
    EXPECT_FALSE(link.closed());
}

TEST_F(HostLink, TakesNoMoreThanItHasRoomFor)
{
    s2sHostLink link(own());
    link.set_room(100000);
    std::string const line(49999, 'x');
    for (int i = 0; i < 2; ++i) {
        say(line + "\n");
        wait_for(link);
    }
    say("later\n");
    EXPECT_EQ(link.wanted(), 0);
    wait_for(link, milliseconds(0));
    EXPECT_EQ(link.unread(), 100000u);

    EXPECT_EQ(link.next_line(), line);
    wait_for(link);
    EXPECT_EQ(link.next_line(), line);
    EXPECT_EQ(link.next_line(), "later");
}

TEST_F(HostLink, SendsAlsoWithoutRoomForMore)
{
    s2sHostLink link(own());
    link.set_room(0);
    link.send("hello");
    wait_for(link);
    std::string buffer(10, '\0');
    EXPECT_EQ(read(other(), buffer.data(), buffer.size()), 6);
}

TEST_F(HostLink, KnowsTheLastLineWithoutTakingIt)
{
    s2sHostLink link(own());
    EXPECT_EQ(link.last_line(), "");
    EXPECT_FALSE(link.has_line());
    say("one");
    wait_for(link);
    EXPECT_EQ(link.last_line(), "");
    EXPECT_FALSE(link.has_line());
    say("\ntwo\nthr");
    wait_for(link);
    EXPECT_EQ(link.last_line(), "two");
    EXPECT_TRUE(link.has_line());
    EXPECT_EQ(link.next_line(), "one");
    EXPECT_EQ(link.next_line(), "two");
    EXPECT_EQ(link.last_line(), "two");
    EXPECT_FALSE(link.has_line());
}

TEST_F(HostLink, WaitsForSeveralAtOnce)
{
    int ends[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    s2sHostLink quiet(own());
    s2sHostLink other_link(ends[0]);
    s2sHostLink * const links[] = {&quiet, &other_link};
    ASSERT_EQ(write(ends[1], "hello\n", 6), 6);
    s2s_wait_for(links, -1, std::nullopt);
    EXPECT_EQ(other_link.next_line(), "hello");
    EXPECT_FALSE(quiet.next_line());
    close(ends[0]);
    close(ends[1]);
}

TEST_F(HostLink, DoesNotTurnInCirclesOnceClosed)
{
    s2sHostLink link(own());
    close_other();
    wait_for(link);
    EXPECT_TRUE(link.closed());
    EXPECT_EQ(link.wanted(), 0);
    s2sWakeUp wake_up;
    wake_up.set();
    s2sHostLink * const links[] = {&link};
    s2s_wait_for(links, wake_up.descriptor(), std::nullopt);
    EXPECT_TRUE(link.closed());
}

TEST_F(HostLink, ClosesOnALineBeyondEveryMeasure)
{
    s2sHostLink link(own());
    std::string const piece(60000, 'x');
    for (int i = 0; i < 2000 && !link.closed(); ++i) {
        say(piece);
        wait_for(link);
    }
    EXPECT_TRUE(link.closed());
}

} // namespace
