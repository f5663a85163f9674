// What the host says of an output beside its source, and what of it the details of a translation tell.

#include <gmock/gmock.h>

#include "batchKit.h"
#include "s2s/s2sHostProgram.h"
#include "vmr/vmrTableInstance.h"

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

    std::string last_kind() const
    {
        auto const translation = details();
        auto const & kept = translation.findings().kept();
        return kept.empty() ? "" : kept.back().kind.str();
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

TEST_F(Verification, KeepsNoPraiseOfAnOutputThatIsNotThere)
{
    for (std::string const word : {"verified", "differs"})
        for (std::string const end : {"end write_error 1 0", "end completed 0 3", "signal 9"}) {
            comm.reset();
            run_script(finding("loss", "#12") + verdict(word) + end);
            EXPECT_EQ(details().verdict(), sdbVerdictNotVerified) << word << end;
            EXPECT_EQ(places(), (std::vector<std::string>{"#12", ""})) << word << end;
            EXPECT_EQ(last_kind(), "no-output") << word << end;
        }
}

TEST_F(Verification, KeepsWhatTheHostSaysOfAnOutputThatIsNotThere)
{
    for (auto const & [word, kept] :
         {std::pair("losses", sdbVerdictLosses), {"not_verified", sdbVerdictNotVerified}})
        for (std::string const end : {"end read_error 0 1", "end completed 0 3"}) {
            comm.reset();
            run_script(finding("loss", "#12") + verdict(word) + end);
            EXPECT_EQ(details().verdict(), kept) << word << end;
            EXPECT_EQ(places(), std::vector<std::string>{"#12"}) << word << end;
            EXPECT_EQ(output_stream.text(), "") << "the host has said it";
        }
}

TEST_F(Verification, IsNotVerifiedWithTheReasonWhenTheHostDies)
{
    run_script(finding("loss", "#12") + "chief half\nsignal 11");
    EXPECT_EQ(details().verdict(), sdbVerdictNotVerified);
    auto const found = details();
    ASSERT_EQ(found.findings().kept().size(), 2u);
    auto const & reason = found.findings().kept()[1];
    EXPECT_EQ(reason.weight, sdbWeightNote);
    EXPECT_EQ(reason.kind, utString("no-output"));
    EXPECT_EQ(reason.text, utString("vmrengine/part.cad was not written"));
    EXPECT_EQ(output_stream.text(), "Not verified: part.cad was not written\n");
}

TEST_F(Verification, IsNotVerifiedWhenTheOutputCannotBePutInItsPlace)
{
    run_script(verdict("verified") + "end completed 1 0");
    EXPECT_EQ(details().status(), s2sThreadWriteError);
    EXPECT_EQ(details().verdict(), sdbVerdictNotVerified);
    EXPECT_EQ(last_kind(), "no-output");
    EXPECT_EQ(output_stream.text(), "Not verified: part.cad was not written\n");
}

TEST_F(Verification, IsNotVerifiedWhenTheHostCouldNotBegin)
{
    run(translation(folder / "gone.cad", folder / "out/part.cad", "end completed 1 0"));
    EXPECT_EQ(details().verdict(), sdbVerdictNotVerified);
    EXPECT_EQ(last_kind(), "no-output");

    comm.reset();
    info.set_info(s2sHOSTPROGRAM, "/nowhere/vmr-host");
    run_script("end completed 1 0");
    EXPECT_EQ(details().verdict(), sdbVerdictNotVerified);
}

TEST_F(Verification, OutlivesAStreamThatTakesNoTextAnyMore)
{
    struct Full : Recorder {
        void write(char const *, char const *, utTextArguments const &) override
        {
            throw std::runtime_error("no space left");
        }
    } stream;
    s2sWrapper(context, info, comm, &loader, &stream, &stream,
               translation(make_input(), folder / "out/part.cad", "signal 9"))
        .run();
    EXPECT_EQ(details().verdict(), sdbVerdictNotVerified);
    EXPECT_EQ(details().status(), s2sThreadReadError);
}

TEST_F(Verification, IsNoneWithoutAnOutputWhereNobodyWantsIt)
{
    vmrTableInstance table;
    table.initialise(folder / "options.rsc");
    table.add_resource("vmrOptVerify", "none");
    for (std::string const end : {"end write_error 1 0", "end completed 0 3", "signal 9"}) {
        comm.reset();
        run({{input(make_input(), finding("loss", "#12") + end)},
             {(folder / "out/part.cad"), &table, module.native(), nullptr, 0, "Fake"}});
        EXPECT_EQ(details().verdict(), sdbVerdictNone) << end;
        EXPECT_EQ(places(), std::vector<std::string>{"#12"}) << end;
        EXPECT_EQ(output_stream.text(), "") << end;
    }
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
