#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "s2s/s2sHostLink.h"
#include "s2s/s2sWakeUp.h"

namespace {

using std::chrono::milliseconds;

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
    s2sHostLink link(own(), -1);
    say("one\ntwo\nthr");
    link.wait(std::nullopt);
    EXPECT_EQ(link.next_line(), "one");
    EXPECT_EQ(link.next_line(), "two");
    EXPECT_FALSE(link.next_line());
    say("ee\n\n");
    link.wait(std::nullopt);
    EXPECT_EQ(link.next_line(), "three");
    EXPECT_EQ(link.next_line(), "");
    EXPECT_FALSE(link.next_line());
    EXPECT_FALSE(link.closed());
}

TEST_F(HostLink, GivesTheLastLinesBeforeItIsClosed)
{
    s2sHostLink link(own(), -1);
    say("last\nunfinished");
    close_other();
    link.wait(std::nullopt);
    EXPECT_EQ(link.next_line(), "last");
    while (!link.closed())
        link.wait(std::nullopt);
    EXPECT_FALSE(link.next_line());
}

TEST_F(HostLink, SendsWhenTheOtherSideTakes)
{
    s2sHostLink link(own(), -1);
    std::string const line(3000000, 'x');
    link.send(line);
    std::string got;
    std::string buffer(100000, '\0');
    while (got.size() < line.size() + 1) {
        link.wait(milliseconds(0));
        auto const count = recv(other(), buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (count > 0)
            got.append(buffer, 0, static_cast<std::size_t>(count));
    }
    EXPECT_EQ(got, line + "\n");
}

TEST_F(HostLink, RaisesNoSignalWhenTheOtherSideIsGone)
{
    s2sHostLink link(own(), -1);
    close_other();
    link.send("hello");
    while (!link.closed())
        link.wait(std::nullopt);
    EXPECT_TRUE(link.closed());
}

TEST_F(HostLink, WakesUp)
{
    s2sWakeUp wake_up;
    s2sHostLink link(own(), wake_up.descriptor());
    wake_up.set();
    link.wait(std::nullopt);
    EXPECT_FALSE(link.next_line());
    EXPECT_FALSE(link.closed());
}

TEST_F(HostLink, ClosesOnALineBeyondEveryMeasure)
{
    s2sHostLink link(own(), -1);
    std::string const piece(60000, 'x');
    for (int i = 0; i < 2000 && !link.closed(); ++i) {
        say(piece);
        link.wait(std::nullopt);
    }
    EXPECT_TRUE(link.closed());
}

} // namespace
