#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include "engineKit.h"

namespace {

class WrapperCancel : public EngineTest {
protected:
    /// Runs with a second thread that asks to stop as soon as the host has said that it is ready.
    int run_and_cancel(std::string const & script)
    {
        std::thread other([this] {
            output_stream.wait_for("ready");
            comm.requestTermination();
        });
        int const result = run_script(script);
        other.join();
        return result;
    }

    void expect_cancelled_without_trace() const
    {
        EXPECT_EQ(details().status(), s2sThreadCancelled);
        EXPECT_NE(comm.threadHasDied(), 0);
        EXPECT_THAT(names_in(folder / "out"), ::testing::IsEmpty());
        for (auto const & message : error_stream.messages())
            EXPECT_EQ(message.domain, "test"); // the host's own, none of the engine's
    }
};

TEST_F(WrapperCancel, StopsAHostThatListens)
{
    EXPECT_EQ(run_and_cancel("chief half\nready\nhang"), 0);
    expect_cancelled_without_trace();
}

TEST_F(WrapperCancel, KillsAHostThatDoesNotListen)
{
    EXPECT_EQ(run_and_cancel("chief half\nready\ndeaf"), 0);
    expect_cancelled_without_trace();
}

TEST_F(WrapperCancel, KillsAHostThatFloodsAndDoesNotListen)
{
    EXPECT_EQ(run_and_cancel("ready\nflood 2000000000"), 0);
    expect_cancelled_without_trace();
}

TEST_F(WrapperCancel, TakesAHostThatCrashesWhenAskedToStopAsCancelled)
{
    EXPECT_EQ(run_and_cancel("ready\nhang\nsignal 11"), 0);
    EXPECT_EQ(details().status(), s2sThreadCancelled);
}

/// A named pipe that tells when the last process that holds its other end is gone.
class Witness {
public:
    explicit Witness(std::string const & file)
    {
        mkfifo(file.c_str(), 0600);
        m_descriptor = open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    }
    ~Witness() { close(m_descriptor); }
    Witness(Witness const &) = delete;
    Witness & operator=(Witness const &) = delete;

    bool all_are_gone() const
    {
        pollfd polled{m_descriptor, POLLIN, 0};
        return poll(&polled, 1, 30000) == 1 && (polled.revents & POLLHUP);
    }

private:
    int m_descriptor;
};

TEST_F(WrapperCancel, KillsWhatTheHostHasStarted)
{
    Witness const witness(folder / "fifo");
    EXPECT_EQ(run_and_cancel("child " + folder / "fifo" + "\nready\ndeaf"), 0);
    expect_cancelled_without_trace();
    EXPECT_TRUE(witness.all_are_gone());
}

TEST_F(WrapperCancel, LeavesNoGrandchildAfterAGoodEndEither)
{
    Witness const witness(folder / "fifo");
    EXPECT_GT(run_script("child " + folder / "fifo" + "\nchief x\nend completed 1 0"), 0);
    EXPECT_TRUE(witness.all_are_gone());
}

TEST_F(WrapperCancel, LeavesTheOldOutputAsItWas)
{
    write_text(folder / "out/part.cad", "old");
    run_and_cancel("chief half\nready\ndeaf");
    EXPECT_EQ(read_text(folder / "out/part.cad"), "old");
    EXPECT_THAT(left_behind(), ::testing::IsEmpty());
}

TEST_F(WrapperCancel, HoldsAlsoWhenAskedBeforeTheRun)
{
    comm.requestTermination();
    EXPECT_EQ(run_script("chief x\nend completed 1 0"), 0);
    EXPECT_EQ(comm.num_translations(), 1);
    expect_cancelled_without_trace();
}

TEST_F(WrapperCancel, IsForgottenAfterAReset)
{
    comm.requestTermination();
    comm.reset();
    EXPECT_GT(run_script("chief x\nend completed 1 0"), 0);
    EXPECT_EQ(details().status(), s2sThreadCompleted);
}

TEST_F(WrapperCancel, HasNoEffectAfterTheEnd)
{
    EXPECT_GT(run_script("chief x\nend completed 1 0"), 0);
    comm.requestTermination();
    EXPECT_EQ(details().status(), s2sThreadCompleted);
    EXPECT_EQ(read_text(folder / "out/part.cad"), "x");
}

TEST_F(WrapperCancel, MayBeRepeated)
{
    output_stream.on_message = [this](Message const &) {
        for (int i = 0; i < 1000; ++i)
            comm.requestTermination();
    };
    EXPECT_EQ(run_script("ready\nhang"), 0);
    expect_cancelled_without_trace();
}

} // namespace
