#include <atomic>
#include <thread>

#include <gtest/gtest.h>
#include <poll.h>

#include "s2s/s2sThreadComm.h"

namespace {

s2sTranslationElements elements(utString const & input)
{
    return {{{input, nullptr, "m.so", 0, "A"}}, {"out", nullptr, "m.so", nullptr, 0, "B"}};
}

bool is_readable(int descriptor)
{
    pollfd polled{descriptor, POLLIN, 0};
    return poll(&polled, 1, 0) == 1;
}

TEST(ThreadStatus, HasTheNumbersThatItsUsersRelyOn)
{
    EXPECT_EQ(static_cast<int>(s2sThreadFileTooBig), 1);
    EXPECT_EQ(static_cast<int>(s2sThreadReadError), 2);
    EXPECT_EQ(static_cast<int>(s2sThreadWriteError), 3);
    EXPECT_EQ(static_cast<int>(s2sThreadCompleted), 4);
    EXPECT_EQ(static_cast<int>(s2sThreadCancelled), 6);
    EXPECT_EQ(static_cast<int>(s2sReadWriteReading), 0);
}

TEST(ThreadComm, IsEmptyAtFirst)
{
    s2sThreadComm const comm(nullptr);
    EXPECT_TRUE(comm.currentFile().empty());
    EXPECT_EQ(comm.progress(), 0);
    EXPECT_EQ(comm.writing(), 0);
    EXPECT_EQ(comm.threadHasDied(), 0);
    EXPECT_EQ(comm.num_translations(), 0);
    EXPECT_FALSE(comm.termination_requested());
}

TEST(ThreadComm, HasReadableDetailsWhereNothingHasBegun)
{
    s2sThreadComm const comm(nullptr);
    EXPECT_EQ(comm.current_translation_details().status(), s2sThreadNotEnded);
    EXPECT_EQ(comm.current_translation_details().num_processed(), 0);
    EXPECT_EQ(comm.current_translation_details().elements().input_elements().count(), 0);
    for (int const index : {-1, 0, 5}) {
        EXPECT_EQ(comm.translation_details(index).status(), s2sThreadCancelled);
        EXPECT_EQ(comm.translation_details(index).num_failed(), 0);
    }
}

TEST(ThreadComm, KeepsTheFileAndTheDirection)
{
    s2sThreadComm comm(nullptr);
    comm.currentFile("a", s2sReadWriteReading);
    auto const & first = comm.currentFile();
    comm.currentFile("b", s2sReadWriteWriting);
    EXPECT_EQ(first, utString("a"));
    EXPECT_EQ(comm.currentFile(), utString("b"));
    EXPECT_NE(comm.writing(), 0);
}

TEST(ThreadComm, CountsTheTranslationsBegunAndKeepsTheirOutcome)
{
    s2sThreadComm comm(nullptr);
    comm.begin_translation(elements("one"));
    EXPECT_EQ(comm.num_translations(), 1);
    EXPECT_EQ(comm.translation_details(0).status(), s2sThreadNotEnded);
    comm.finish_translation(s2sThreadCompleted, 3, 1);
    comm.begin_translation(elements("two"));
    EXPECT_EQ(comm.num_translations(), 2);
    EXPECT_EQ(comm.translation_details(0).status(), s2sThreadCompleted);
    EXPECT_EQ(comm.translation_details(0).num_processed(), 3);
    EXPECT_EQ(comm.translation_details(0).num_failed(), 1);
    EXPECT_EQ(comm.current_translation_details().elements().first_input_file(), utString("two"));
}

TEST(ThreadComm, LetsProgressOnlyGrowWithinOneTranslation)
{
    s2sThreadComm comm(nullptr);
    comm.begin_translation(elements("one"));
    comm.set_progress(40);
    comm.set_progress(30);
    EXPECT_EQ(comm.progress(), 40);
    comm.set_progress(400);
    EXPECT_EQ(comm.progress(), 100);
    comm.begin_translation(elements("two"));
    EXPECT_EQ(comm.progress(), 0);
}

TEST(ThreadComm, MakesItsDescriptorReadableWhenAskedToStop)
{
    s2sThreadComm comm(nullptr);
    EXPECT_FALSE(is_readable(comm.termination_descriptor()));
    comm.requestTermination();
    comm.requestTermination();
    EXPECT_TRUE(comm.termination_requested());
    EXPECT_TRUE(is_readable(comm.termination_descriptor()));
    comm.reset();
    EXPECT_FALSE(comm.termination_requested());
    EXPECT_FALSE(is_readable(comm.termination_descriptor()));
}

TEST(ThreadComm, ForgetsEverythingOnReset)
{
    s2sThreadComm comm(nullptr);
    comm.currentFile("a", s2sReadWriteWriting);
    comm.begin_translation(elements("one"));
    comm.set_progress(50);
    comm.set_thread_has_died();
    EXPECT_NE(comm.threadHasDied(), 0);
    comm.reset();
    EXPECT_TRUE(comm.currentFile().empty());
    EXPECT_EQ(comm.writing(), 0);
    EXPECT_EQ(comm.progress(), 0);
    EXPECT_EQ(comm.num_translations(), 0);
    EXPECT_EQ(comm.threadHasDied(), 0);
}

TEST(ThreadComm, MayBeReadWhileAJobWrites)
{
    s2sThreadComm comm(nullptr);
    std::thread job([&comm] {
        for (int i = 0; i < 300; ++i) {
            comm.begin_translation(elements(utString("in") + utString(std::to_string(i))));
            comm.currentFile(utString(std::to_string(i % 20)),
                             i % 2 ? s2sReadWriteWriting : s2sReadWriteReading);
            comm.set_progress(i % 101);
            comm.finish_translation(s2sThreadCompleted, i, 0);
        }
        comm.set_thread_has_died();
    });
    int most = 0;
    while (!comm.threadHasDied()) {
        EXPECT_LE(comm.currentFile().length(), 2);
        EXPECT_GE(comm.progress(), 0);
        EXPECT_GE(comm.num_translations(), most);
        most = comm.num_translations();
        EXPECT_GE(comm.current_translation_details().num_processed(), 0);
        comm.requestTermination();
    }
    job.join();
    EXPECT_EQ(comm.num_translations(), 300);
    EXPECT_EQ(comm.translation_details(299).num_processed(), 299);
}

} // namespace
