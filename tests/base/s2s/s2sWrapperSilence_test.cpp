#include <gmock/gmock.h>

#include "batchKit.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string const writing = R"(say {"event":"file","path":"p","direction":"writing"})"
                            "\n";

/// The translator may be silent for a second.
class WrapperSilence : public BatchTest {
protected:
    WrapperSilence() { context.set_limits({.patience = std::chrono::seconds(1)}); }
};

TEST_F(WrapperSilence, EndsATranslationThatReadsForEver)
{
    EXPECT_EQ(run_script("chief half\nready\ndeaf"), 0);
    EXPECT_EQ(details().status(), s2sThreadReadError);
    EXPECT_EQ(details().verdict(), sdbVerdictNotVerified);
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
    EXPECT_EQ(error_stream.text(),
              "The translator was ended because it said nothing new for 2 seconds while reading " +
                  folder / "in.cad" +
                  ". The file may be damaged; for one that takes longer, raise the setting "
                  "translation_patience.\n");
    EXPECT_EQ(output_stream.messages().front().key, "ready");
}

TEST_F(WrapperSilence, EndsATranslationThatWritesForEver)
{
    EXPECT_EQ(run_script(writing + "chief half\ndeaf"), 0);
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
    EXPECT_THAT(error_stream.text(), HasSubstr("while writing " + folder / "out/part.cad" + ". No output"));
}

TEST_F(WrapperSilence, EndsATranslationThatRepeatsItselfForEver)
{
    EXPECT_EQ(run_script("repeat {\"event\":\"progress\",\"percent\":7}"), 0);
    EXPECT_EQ(details().status(), s2sThreadReadError);
    EXPECT_EQ(comm.progress(), 7);
    EXPECT_THAT(error_stream.text(), HasSubstr("said nothing new"));
}

TEST_F(WrapperSilence, EndsOneOfABatchAndGoesOn)
{
    context.set_hosts(3);
    EXPECT_EQ(run_batch({entry("a", "deaf"), entry("b", "deaf"), entry("c", "chief 3\nend completed 1 0")}),
              0);
    std::vector<int> statuses;
    for (int i = 0; i < 3; ++i)
        statuses.push_back(comm.translation_details(i).status());
    EXPECT_THAT(statuses, ElementsAre(s2sThreadReadError, s2sThreadReadError, s2sThreadCompleted));
    EXPECT_THAT(names_in(folder / "out"), ElementsAre("c"));
    auto errors = error_stream.text();
    EXPECT_THAT(cut_section(errors), HasSubstr("reading " + folder / "a"));
    EXPECT_THAT(cut_section(errors), HasSubstr("reading " + folder / "b"));
    EXPECT_EQ(cut_section(errors), "");
}

TEST_F(WrapperSilence, LeavesATranslationAloneThatIsToBeWaitedForForEver)
{
    context.set_limits({.patience = std::chrono::seconds(0)});
    output_stream.on_message = [this](Message const & message) {
        if (message.key == "ready")
            comm.requestTermination();
    };
    EXPECT_EQ(run_script("ready\ndeaf"), 0);
    EXPECT_EQ(details().status(), s2sThreadCancelled);
    EXPECT_THAT(error_stream.text(), IsEmpty());
}

} // namespace
