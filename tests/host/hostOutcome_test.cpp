// How translations end that have no output: what is told of them, and their verdict.

#include "HostRun.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

using nlohmann::json;

namespace {

struct Outcome {
    std::string name;
    std::string reader;
    std::string writer;
    std::string status;
    std::string verdict;
    std::string last; // message of all, without its context
    std::vector<std::string> kinds;
};

std::ostream & operator<<(std::ostream & stream, Outcome const & outcome)
{
    return stream << outcome.name;
}

std::string const not_written = "Not verified: %s was not written\n";

} // namespace

class HostOutcome : public testing::Test {
protected:
    void run(std::string const & reader, std::string const & writer, json const & options = json::object())
    {
        HostJob job;
        job.input("/in/a.odd", ODD_MODULE, reader).output(out, ODD_MODULE, writer, options);
        HostRun host;
        host.send(job.line());
        events = host.rest();
        ASSERT_TRUE(host.exits_with(0));
        ASSERT_FALSE(events.empty());
    }

    std::vector<json> of_kind(std::string const & kind) const
    {
        std::vector<json> found;
        std::copy_if(events.begin(), events.end(), std::back_inserter(found),
                     [&](json const & event) { return event["event"] == kind; });
        return found;
    }

    std::vector<std::string> verdicts() const
    {
        std::vector<std::string> found;
        for (auto const & event : of_kind("verdict")) {
            found.push_back(event["verdict"].get<std::string>());
        }
        return found;
    }

    std::vector<std::string> kinds() const
    {
        std::vector<std::string> found;
        for (auto const & event : of_kind("finding")) {
            found.push_back(event["kind"].get<std::string>());
        }
        return found;
    }

    // How often the user is told a text that contains this one.
    std::ptrdiff_t told(std::string const & part) const
    {
        auto const messages = of_kind("message");
        return std::count_if(messages.begin(), messages.end(), [&](json const & message) {
            return message["key"].get<std::string>().find(part) != std::string::npos;
        });
    }

    kitTempFolder const folder;
    std::string const out = folder / "out.odd";
    std::vector<json> events;
};

class HostOutcomes : public HostOutcome, public testing::WithParamInterface<Outcome> {};

TEST_P(HostOutcomes, HaveAVerdictAndEverythingThatWasFound)
{
    auto const & outcome = GetParam();
    run(outcome.reader, outcome.writer);
    EXPECT_EQ(events.back()["status"], outcome.status);
    EXPECT_EQ(verdicts(), std::vector<std::string>{outcome.verdict});
    EXPECT_EQ(kinds(), outcome.kinds);
    auto const messages = of_kind("message");
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.back()["key"], "host::" + outcome.last);
    EXPECT_EQ(messages.back()["stream"], "output");
    EXPECT_EQ(told("was not written"), 1) << "the same is not said twice";
    EXPECT_FALSE(std::filesystem::exists(out));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, HostOutcomes, testing::Values(
    Outcome{"ReaderRefuses", "Fails", "Box", "read_error", "not_verified", not_written, {"unit-assumed", "no-output"}},
    Outcome{"ReaderThrows", "Throws", "Box", "read_error", "not_verified", not_written, {"unit-assumed", "no-output"}},
    Outcome{"NoReader", "NotMade", "Box", "read_error", "not_verified", not_written, {"no-output"}},
    Outcome{"NoWriter", "Box", "NotMade", "write_error", "not_verified", not_written, {"unit-assumed", "no-output"}},
    Outcome{"NothingConverted", "Box", "FindsNothing", "completed", "not_verified", not_written, {"unit-assumed", "no-output"}},
    Outcome{"NothingHadAShape", "Loses", "Box", "completed", "losses", "Losses: %s was not written; things of the source that gave no shape: %d\n", {"unit-assumed", "not-translated"}},
    Outcome{"ReaderRefusesWhatItLost", "LosesAll", "Box", "read_error", "losses", "Losses: %s was not written; things of the source that gave no shape: %d\n", {"unit-assumed", "not-translated"}},
    Outcome{"WriterFails", "Box", "WritesHalf", "write_error", "not_verified", not_written, {"unit-assumed", "source-open", "no-output"}},
    Outcome{"WriterThrows", "Box", "Throws", "write_error", "not_verified", not_written, {"unit-assumed", "source-open", "no-output"}},
    Outcome{"WriterWritesNothing", "Box", "WritesEmpty", "write_error", "not_verified", not_written, {"unit-assumed", "source-open", "no-output"}}),
    [](auto const & outcome) { return outcome.param.name; });
// clang-format on

TEST_F(HostOutcome, TellsTheUserWhatAReaderHasFoundThatThenGivesUp)
{
    run("Fails", "Box");
    EXPECT_EQ(told("#1 is odd"), 1);
    auto const found = of_kind("finding").front();
    EXPECT_EQ(found["place"], "#1");
    EXPECT_EQ(found["weight"], "note");
}

TEST_F(HostOutcome, IsNoVerdictWhereNobodyWantsOne)
{
    for (auto const & [reader, writer] :
         {std::pair("Fails", "Box"), {"Loses", "Box"}, {"Box", "WritesHalf"}, {"Box", "FindsNothing"}}) {
        run(reader, writer, {{"vmrOptVerify", "none"}});
        EXPECT_TRUE(verdicts().empty()) << reader;
        EXPECT_EQ(told("was not written"), 0) << reader;
        auto const found = kinds();
        EXPECT_FALSE(found.empty()) << reader;
        EXPECT_EQ(std::count(found.begin(), found.end(), "no-output"), 0) << reader;
    }
}

TEST_F(HostOutcome, NamesWhatWasNotWrittenByItsFinalName)
{
    HostJob job;
    job.input("/in/a.odd", ODD_MODULE, "Fails").output(out, ODD_MODULE, "Box");
    job.value()["output"]["final"] = "/out/part.odd";
    HostRun host;
    host.send(job.line());
    events = host.rest();
    EXPECT_EQ(of_kind("message").back()["args"], json({"part.odd"}));
}
