#include "HostRun.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

using nlohmann::json;

class HostTranslation : public testing::Test {
protected:
    std::vector<json> run(HostJob const & job)
    {
        HostRun host;
        host.send(job.line());
        auto events = host.rest();
        EXPECT_TRUE(host.exits_with(0));
        EXPECT_FALSE(events.empty());
        return events;
    }

    HostJob job(std::string const & reader, std::string const & writer)
    {
        HostJob job;
        job.input("/in/a.odd", ODD_MODULE, reader).output(out, ODD_MODULE, writer);
        return job;
    }

    // The last message of an error; an empty object without any.
    static json last_error(std::vector<json> const & events)
    {
        auto const found = std::find_if(events.rbegin(), events.rend(), [](json const & event) {
            return event.value("stream", "") == "error";
        });
        return found == events.rend() ? json::object() : *found;
    }

    kitTempFolder const folder;
    std::string const out = folder / "out.odd";
};

namespace {

json of_kind(std::vector<json> const & events, std::string const & kind)
{
    json found = json::array();
    for (auto const & event : events) {
        if (event["event"] == kind) {
            found.push_back(event);
        }
    }
    return found;
}

} // namespace

TEST_F(HostTranslation, TellsFilesProgressAndTheEnd)
{
    auto const events = run(job("Box", "Box"));
    auto const files = of_kind(events, "file");
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0], json({{"event", "file"}, {"path", "/in/a.odd"}, {"direction", "reading"}}));
    EXPECT_EQ(files[1], json({{"event", "file"}, {"path", out}, {"direction", "writing"}}));
    int last = -1;
    for (auto const & progress : of_kind(events, "progress")) {
        EXPECT_GT(progress["percent"].get<int>(), last);
        last = progress["percent"].get<int>();
    }
    EXPECT_LE(last, 100);
    EXPECT_EQ(events.back(),
              json({{"event", "end"}, {"status", "completed"}, {"processed", 1}, {"failed", 0}}));
    EXPECT_EQ(kit_read_file(out), "Point");
}

TEST_F(HostTranslation, RecordsWhatTheInputHolds)
{
    auto const findings = of_kind(run(job("Counts", "Box")), "finding");
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings[0]["kind"], "contents");
    EXPECT_EQ(findings[0]["weight"], "note");
    EXPECT_EQ(findings[0]["source"], 1);
    EXPECT_EQ(findings[0]["args"], json({"a.odd", 1, 2, 0, 12, 0, 3}));
    // Of a reader that does not count nothing is known.
    for (auto const & finding : of_kind(run(job("Box", "Box")), "finding")) {
        EXPECT_NE(finding["kind"], "contents");
    }
}

TEST_F(HostTranslation, UsesTheFinalNameInWhatItSays)
{
    auto final_name = job("Box", "Box");
    final_name.value()["output"]["final"] = "/out/part.odd";
    auto const events = run(final_name);
    EXPECT_EQ(of_kind(events, "file")[1]["path"], "/out/part.odd");
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST_F(HostTranslation, MergesInputsUnderTheNamesOfTheirFiles)
{
    HostJob merge;
    merge.input("/in/left.odd", ODD_MODULE, "Box", {{"oddSize", "1"}})
        .input("/in/right.odd", ODD_MODULE, "Box", {{"oddSize", "2"}})
        .output(out, ODD_MODULE, "Box");
    auto const events = run(merge);
    EXPECT_EQ(events.back()["processed"], 2);
    EXPECT_EQ(kit_read_file(out), "out(left=Point;right=Point;)");
    EXPECT_EQ(of_kind(events, "file").size(), 3U);
}

TEST_F(HostTranslation, PassesOnWhatAReaderCouldNotRead)
{
    auto const events = run(job("Fails", "Box"));
    EXPECT_EQ(events.back()["status"], "read_error");
    auto const message = last_error(events);
    EXPECT_EQ(message["args"], json({"/in/a.odd", 7}));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostTranslation, TurnsAnExceptionOfTheToolkitIntoAReadError)
{
    auto const events = run(job("Throws", "Box"));
    EXPECT_EQ(events.back()["status"], "read_error");
    EXPECT_EQ(last_error(events)["args"][0], "/in/a.odd");
    EXPECT_NE(last_error(events)["args"][1].get<std::string>().find("a toolkit failure"), std::string::npos);
}

TEST_F(HostTranslation, LeavesNoFileOfAWriterThatThrows)
{
    auto const events = run(job("Box", "Throws"));
    EXPECT_EQ(events.back()["status"], "write_error");
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostTranslation, LeavesNoHalfOfAFile)
{
    auto const events = run(job("Box", "WritesHalf"));
    EXPECT_EQ(events.back()["status"], "write_error");
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostTranslation, DoesNotCallAnAbsentOrEmptyFileASuccess)
{
    for (char const * const writer : {"WritesNothing", "WritesEmpty"}) {
        auto const events = run(job("Box", writer));
        EXPECT_EQ(events.back()["status"], "write_error") << writer;
        EXPECT_NE(last_error(events).value("key", "").find("could not be written"), std::string::npos)
            << writer;
        EXPECT_FALSE(std::filesystem::exists(out)) << writer;
    }
}

TEST_F(HostTranslation, CompletesWithoutAFileWhenNothingWasConverted)
{
    auto const events = run(job("Box", "FindsNothing"));
    EXPECT_EQ(events.back(),
              json({{"event", "end"}, {"status", "completed"}, {"processed", 0}, {"failed", 0}}));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostTranslation, AnOutputThatExistsSurvivesAReadError)
{
    folder.write("out.odd", "old");
    run(job("Fails", "Box"));
    EXPECT_EQ(kit_read_file(out), "old");
}

TEST_F(HostTranslation, TellsTheUserOfOptionsWithoutEffect)
{
    HostJob odd;
    odd.input("/in/a.odd", ODD_MODULE, "Box",
              {{"oddSize", "big"}, {"unknown", "1"}, {"vmrTolTriangulate3d", "1"}})
        .output(out, ODD_MODULE, "Box", {{"oddSize", "1000"}});
    auto const messages = of_kind(run(odd), "message");
    int errors = 0;
    for (auto const & message : messages) {
        errors += message["stream"] == "error" ? 1 : 0;
    }
    EXPECT_EQ(errors, 3) << messages.dump(1);
}

TEST_F(HostTranslation, SaysWhichModuleIsMissing)
{
    HostJob missing;
    missing.input("/in/a.odd", folder / "none.so", "Box").output(out, ODD_MODULE, "Box");
    auto const events = run(missing);
    EXPECT_EQ(events.back()["status"], "read_error");
    EXPECT_EQ(last_error(events)["args"][0], folder / "none.so");
}

TEST_F(HostTranslation, ReportsAModuleThatDoesNotMakeItsReader)
{
    EXPECT_EQ(run(job("NotMade", "Box")).back()["status"], "read_error");
    EXPECT_EQ(run(job("Box", "NotMade")).back()["status"], "write_error");
}
