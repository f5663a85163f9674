// What the host says of an output beside its source, and what of it the details of a translation tell.

#include <gmock/gmock.h>

#include "batchKit.h"

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string finding(std::string const & weight, std::string const & place)
{
    return R"(say {"event":"finding","weight":")" + weight +
           R"(","kind":"not-translated","part":"Bolt","place":")" + place +
           R"(","source":3,"domain":"vmrhost","key":"step::%s at %s is lost","args":["Bolt",")" + place +
           "\"]}\n";
}

std::string verdict(std::string const & word)
{
    return R"(say {"event":"verdict","verdict":")" + word + "\"}\n";
}

class Verification : public BatchTest {
protected:
    std::vector<std::string> places(int index = 0) const
    {
        std::vector<std::string> all;
        auto const translation = comm.translation_details(index);
        for (auto const & one : translation.findings().kept())
            all.push_back(one.place.str());
        return all;
    }
};

TEST_F(Verification, IsToldByTheDetails)
{
    EXPECT_GT(run_script(finding("loss", "#12") + finding("note", "#15") + verdict("losses") +
                         "chief x\nend completed 1 1"),
              0);
    EXPECT_EQ(details().verdict(), sdbVerdictLosses);
    auto const found = details();
    ASSERT_EQ(found.findings().kept().size(), 2u);
    auto const & first = found.findings().kept()[0];
    EXPECT_EQ(first.weight, sdbWeightLoss);
    EXPECT_EQ(first.kind, utString("not-translated"));
    EXPECT_EQ(first.part, utString("Bolt"));
    EXPECT_EQ(first.place, utString("#12"));
    EXPECT_EQ(first.source, 3);
    EXPECT_FALSE(first.output);
    EXPECT_EQ(found.findings().kept()[1].weight, sdbWeightNote);
}

TEST_F(Verification, HasTheTextsThatTheStreamsWouldShow)
{
    run_script(finding("loss", "#12") + "chief x\nend completed 1 1");
    EXPECT_EQ(details().findings().kept().at(0).text, utString("vmrhost/Bolt at #12 is lost"));
}

TEST_F(Verification, LooksForTextsWithTheEndOfTheirLineLikeMessages)
{
    struct Catalogue : Recorder {
        utString text(char const *, char const * key, utTextArguments const &) const override
        {
            return std::string_view(key).ends_with('\n') ? "found\n" : "missing";
        }
    } stream;
    s2sWrapper(context, info, comm, &loader, &stream, nullptr,
               translation(make_input(), folder / "out/part.cad",
                           finding("loss", "#12") + "chief x\nend completed 1 1"))
        .run();
    EXPECT_EQ(details().findings().kept().at(0).text, utString("found"));
}

TEST_F(Verification, SaysNothingInTheStreams)
{
    run_script(finding("loss", "#12") + verdict("losses") + "chief x\nend completed 1 1");
    EXPECT_EQ(output_stream.text(), "");
    EXPECT_EQ(error_stream.text(), "");
}

TEST_F(Verification, KeepsFindingsWithoutStreams)
{
    s2sWrapper(context, info, comm, &loader, nullptr, nullptr,
               translation(make_input(), folder / "out/part.cad",
                           finding("loss", "#12") + verdict("losses") + "chief x\nend completed 1 1"))
        .run();
    EXPECT_EQ(details().verdict(), sdbVerdictLosses);
    EXPECT_EQ(places(), std::vector<std::string>{"#12"});
}

TEST_F(Verification, IsNoneWhenTheHostGaveNoVerdict)
{
    EXPECT_GT(run_script("chief x\nend completed 1 0"), 0);
    EXPECT_EQ(details().verdict(), sdbVerdictNone);
    EXPECT_TRUE(details().findings().empty());
}

TEST_F(Verification, KeepsNoVerdictOnAnOutputThatIsNotThere)
{
    for (auto const script : {"end write_error 1 0", "end completed 0 3", "signal 9"}) {
        comm.reset();
        run_script(finding("loss", "#12") + verdict("verified") + script);
        EXPECT_EQ(details().verdict(), sdbVerdictNone) << script;
        EXPECT_EQ(places(), std::vector<std::string>{"#12"}) << script;
    }
}

TEST_F(Verification, KeepsNoVerdictWhenTheOutputCannotBePutInItsPlace)
{
    run_script(verdict("verified") + "end completed 1 0");
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_EQ(details().verdict(), sdbVerdictNone);
}

TEST_F(Verification, IsForgottenWhenTheUserCancels)
{
    output_stream.on_message = [this](Message const &) { comm.requestTermination(); };
    run_script(finding("loss", "#12") + verdict("losses") + "ready\nhang");
    EXPECT_EQ(details().status(), s2sThreadCancelled);
    EXPECT_EQ(details().verdict(), sdbVerdictNone);
    EXPECT_TRUE(details().findings().empty());
}

TEST_F(Verification, SaysThatAVerdictOfNoKnownNameWasNotUnderstood)
{
    EXPECT_GT(run_script(verdict("splendid") + "chief x\nend completed 1 0"), 0);
    EXPECT_EQ(details().verdict(), sdbVerdictNone);
    EXPECT_THAT(error_stream.text(), HasSubstr("splendid"));
}

TEST_F(Verification, BelongsToTheEntryOfABatchThatItIsAbout)
{
    context.set_hosts(3);
    auto const pipe = fifo("pipe");
    // The second entry has said all before the first begins to.
    EXPECT_GT(run_batch({entry("a", "await " + pipe + "\n" + finding("loss", "#1") + verdict("losses") +
                                        "chief 1\nend completed 1 0"),
                         entry("b", finding("difference", "#2") + verdict("differs") + "chief 2\ntell " +
                                        pipe + "\nend completed 1 0"),
                         entry("c", verdict("verified") + "chief 3\nend completed 1 0")}),
              0);
    EXPECT_EQ(comm.translation_details(0).verdict(), sdbVerdictLosses);
    EXPECT_EQ(places(0), std::vector<std::string>{"#1"});
    EXPECT_EQ(comm.translation_details(1).verdict(), sdbVerdictDiffers);
    EXPECT_EQ(places(1), std::vector<std::string>{"#2"});
    EXPECT_EQ(comm.translation_details(2).verdict(), sdbVerdictVerified);
    EXPECT_THAT(places(2), IsEmpty());
}

TEST_F(Verification, IsNoneForWhatHasNotBegun)
{
    EXPECT_EQ(comm.translation_details(5).verdict(), sdbVerdictNone);
    EXPECT_TRUE(comm.translation_details(5).findings().empty());
}

} // namespace
