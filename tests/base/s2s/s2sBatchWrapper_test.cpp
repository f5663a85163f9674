#include <gmock/gmock.h>

#include "batchKit.h"
#include "s2s/s2sBatchMarker.h"
#include "sdu/sduFileFunctions.h"

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class BatchWrapper : public BatchTest {};

TEST_F(BatchWrapper, TranslatesOneAfterTheOther)
{
    EXPECT_GT(run_batch({entry("a", "chief 1\nend completed 1 0"), entry("b", "chief 2\nend completed 2 1")}),
              0);
    EXPECT_EQ(read_text(folder / "out/a"), "1");
    EXPECT_EQ(read_text(folder / "out/b"), "2");
    EXPECT_EQ(comm.num_translations(), 2);
    EXPECT_EQ(comm.translation_details(0).num_processed(), 1);
    EXPECT_EQ(comm.translation_details(1).num_failed(), 1);
    EXPECT_NE(comm.threadHasDied(), 0);
}

TEST_F(BatchWrapper, CountsTheTranslationsAndTheProgressOfEach)
{
    std::vector<std::pair<int, int>> seen;
    output_stream.on_message = [&](Message const & message) {
        if (message.key == "ready")
            seen.emplace_back(comm.num_translations(), comm.progress());
    };
    std::string const script = "ready\n"
                               R"(say {"event":"progress","percent":60})"
                               "\nready\nend completed 0 0";
    run_batch({entry("a", script), entry("b", script)});
    std::vector<std::pair<int, int>> const expected = {{1, 0}, {1, 60}, {2, 0}, {2, 60}};
    EXPECT_EQ(seen, expected);
}

TEST_F(BatchWrapper, FramesTheSectionOfEachInBothStreams)
{
    run_batch({entry("a", say("output", "one") + say("error", "first") + "chief x\nend completed 1 0"),
               entry("b", "chief x\nend completed 1 0"),
               entry("c", say("output", "three") + "chief x\nend completed 1 0")});
    auto output = output_stream.text();
    auto errors = error_stream.text();
    auto const marker = s2s_batch_marker().str();
    EXPECT_EQ(output.substr(0, output.find("one")),
              marker + "\nTranslating " + folder / "a" + " to " + folder / "out/a" + "\n" + marker + "\n");
    EXPECT_EQ(cut_section(output), "one\n");
    EXPECT_EQ(cut_section(output), "");
    EXPECT_EQ(cut_section(output), "three");
    EXPECT_EQ(cut_section(errors), "first\n");
    EXPECT_EQ(cut_section(errors), "");
    EXPECT_EQ(cut_section(errors), "");
}

TEST_F(BatchWrapper, HasAMarkerThatIsOneLine)
{
    EXPECT_FALSE(s2s_batch_marker().empty());
    EXPECT_EQ(s2s_batch_marker().locate_substring("\n"), -1);
    EXPECT_EQ(s2s_batch_marker().locate_substring("%"), -1);
}

TEST_F(BatchWrapper, GoesOnAfterAnEntryThatFails)
{
    EXPECT_EQ(run_batch({entry("a", "signal 11"), entry("b", "chief 2\nend completed 1 0")}), 0);
    EXPECT_EQ(comm.translation_details(0).status(), s2sThreadReadError);
    EXPECT_EQ(comm.translation_details(1).status(), s2sThreadCompleted);
    EXPECT_EQ(read_text(folder / "out/b"), "2");
}

TEST_F(BatchWrapper, StopsWhenCancelledAndKeepsWhatIsFinished)
{
    output_stream.on_message = [this](Message const & message) {
        if (message.key == "ready")
            comm.requestTermination();
    };
    EXPECT_EQ(run_batch({entry("a", "chief 1\nend completed 1 0"), entry("b", "chief 2\nready\nhang"),
                         entry("c", "chief 3\nend completed 1 0")}),
              0);
    EXPECT_EQ(comm.num_translations(), 2);
    EXPECT_EQ(comm.translation_details(0).status(), s2sThreadCompleted);
    EXPECT_EQ(comm.translation_details(1).status(), s2sThreadCancelled);
    EXPECT_EQ(comm.translation_details(2).status(), s2sThreadCancelled);
    EXPECT_EQ(comm.translation_details(2).num_failed(), 0);
    EXPECT_THAT(names_in(folder / "out"), ::testing::ElementsAre("a"));
}

TEST_F(BatchWrapper, BeginsTheFirstEntryAlsoWhenCancelledBefore)
{
    comm.requestTermination();
    EXPECT_EQ(run_batch({entry("a", "chief 1\nend completed 1 0"), entry("b", "end completed 1 0")}), 0);
    EXPECT_EQ(comm.num_translations(), 1);
    EXPECT_EQ(comm.current_translation_details().status(), s2sThreadCancelled);
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
}

TEST_F(BatchWrapper, RefusesAnOutputThatIsTheInputOfAnotherEntry)
{
    auto const b = make_input("b");
    auto const wrapper = make_batch({translation(make_input("a"), b, "chief x\nend completed 1 0"),
                                     translation(b, folder / "out/b", "chief y\nend completed 1 0")});
    EXPECT_EQ(wrapper->run(), 0);
    EXPECT_EQ(comm.translation_details(0).status(), s2sThreadWriteError);
    EXPECT_EQ(comm.translation_details(1).status(), s2sThreadCompleted);
    EXPECT_THAT(error_stream.text(), HasSubstr("The output file " + b.native() + " is also an input file."));
    EXPECT_EQ(sdu_remove_file(b.native()), sduFileProtected);
    EXPECT_EQ(read_text(b), "input");
}

TEST_F(BatchWrapper, EndsAlsoWithoutEntries)
{
    EXPECT_GT(run_batch({}), 0);
    EXPECT_NE(comm.threadHasDied(), 0);
    EXPECT_EQ(comm.num_translations(), 0);
}

} // namespace
