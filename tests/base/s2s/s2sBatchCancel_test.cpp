#include <gmock/gmock.h>
#include <sys/wait.h>

#include "batchKit.h"
#include "s2s/s2sBatchMarker.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Batches that are cancelled when an entry says that it is ready.
class BatchCancel : public BatchTest {
protected:
    BatchCancel()
    {
        context.set_hosts(3);
        output_stream.on_message = [this](Message const & message) {
            if (message.key == "ready")
                comm.requestTermination();
        };
    }

    /// Nothing but the first entry has begun for anybody who looks.
    void expect_only_the_first() const
    {
        EXPECT_EQ(comm.num_translations(), 1);
        EXPECT_EQ(comm.current_translation_details().status(), s2sThreadCancelled);
        EXPECT_EQ(comm.translation_details(1).status(), s2sThreadCancelled);
        EXPECT_EQ(comm.translation_details(1).num_processed(), 0);
        for (auto const stream : {&output_stream, &error_stream}) {
            auto const text = stream->text();
            auto const marker = s2s_batch_marker().str();
            auto const second = text.find(marker, text.find(marker) + 1);
            EXPECT_EQ(text.find(marker, second + 1), std::string::npos);
        }
        EXPECT_THAT(left_behind(), IsEmpty());
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1); // no process is left
    }
};

TEST_F(BatchCancel, LeavesNothingOfAnEntryThatIsComplete)
{
    auto const pipe = fifo("pipe");
    write_text(folder / "out/b", "old");
    EXPECT_EQ(run_batch({entry("a", "chief 1\nawait " + pipe + "\nready\nhang"),
                         entry("b", "hold " + pipe + "\n" + say("output", "two") + say("error", "bad") +
                                        "chief 2\nwrite b.lib 2\nend completed 1 0")}),
              0);
    expect_only_the_first();
    EXPECT_EQ(read_text(folder / "out/b"), "old");
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("b"));
}

TEST_F(BatchCancel, LeavesNothingOfEntriesAtWork)
{
    auto const one = fifo("one");
    auto const two = fifo("two");
    int const before = open_descriptors();
    EXPECT_EQ(run_batch({entry("a", "chief 1\nawait " + one + "\nawait " + two + "\nready\ndeaf"),
                         entry("b", "chief 2\ntell " + one + "\ndeaf"),
                         entry("c", "chief 3\ntell " + two + "\nflood 2000000000")}),
              0);
    expect_only_the_first();
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
    EXPECT_EQ(open_descriptors(), before);
}

TEST_F(BatchCancel, KeepsWhatIsFinishedInOrder)
{
    auto const pipe = fifo("pipe");
    EXPECT_EQ(run_batch({entry("a", "await " + pipe + "\nchief 1\nend completed 1 0"),
                         entry("b", "hold " + pipe + "\nready\nchief 2\nend completed 1 0"),
                         entry("c", "chief 3\nend completed 1 0"), entry("d", "chief 4\nend completed 1 0")}),
              0);
    // The second had come to its end before it was told to stop.
    EXPECT_EQ(comm.num_translations(), 2);
    EXPECT_EQ(comm.translation_details(1).status(), s2sThreadCompleted);
    EXPECT_EQ(comm.translation_details(2).status(), s2sThreadCancelled);
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("a", "b"));
}

TEST_F(BatchCancel, ReachesAnEntryThatHasBegunAhead)
{
    auto const pipe = fifo("pipe");
    EXPECT_EQ(run_batch({entry("a", "await " + pipe + "\nchief 1\nend completed 1 0"),
                         entry("b", "chief 2\ntell " + pipe + "\nready\nhang")}),
              0);
    EXPECT_EQ(comm.num_translations(), 2);
    EXPECT_EQ(comm.translation_details(1).status(), s2sThreadCancelled);
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("a"));
}

} // namespace
