#include "HostRun.h"
#include "hostSource.h"

#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>

using nlohmann::json;

namespace {

struct Lie {
    std::string told;
    std::string kind;    // of a finding that has to be there
    std::string part;    // that the finding names
    std::string verdict; // of a full comparison
    std::string counted; // kind that the counts find; empty when they cannot
};

std::ostream & operator<<(std::ostream & stream, Lie const & lie)
{
    return stream << lie.told;
}

} // namespace

class HostVerification : public testing::Test {
protected:
    HostVerification()
    {
        job.input(host_write_source(folder, kit_add_assembly), TRANSLATORS "/step.so", "STEP");
    }

    void run(std::map<std::string, std::string> const & options, std::string const & format = "LIE")
    {
        job.output(out, LIES_MODULE, format, options);
        HostRun host;
        host.send(job.line());
        events = host.rest();
        ASSERT_TRUE(host.exits_with(0));
        ASSERT_FALSE(events.empty());
    }

    std::string status() const { return events.back().value("status", ""); }

    // Empty without a line of it.
    std::string verdict() const
    {
        std::string found;
        for (auto const & event : events) {
            if (event["event"] == "verdict") {
                EXPECT_EQ(found, "") << "two verdicts";
                found = event["verdict"];
            }
        }
        return found;
    }

    // Of that kind, or all but what the input holds.
    json findings(std::string const & kind = {}) const
    {
        json found = json::array();
        for (auto const & event : events) {
            if (event["event"] == "finding" &&
                (kind.empty() ? event["kind"] != "contents" : event["kind"] == kind)) {
                found.push_back(event);
            }
        }
        return found;
    }

    bool has_message(std::string const & part_of_key) const
    {
        return std::any_of(events.begin(), events.end(), [&](json const & event) {
            return event["event"] == "message" &&
                   event["key"].get<std::string>().find(part_of_key) != std::string::npos;
        });
    }

    kitTempFolder const folder;
    std::string const out = folder / "out.lie";
    HostJob job;
    std::vector<json> events;
};

class HostLies : public HostVerification, public testing::WithParamInterface<Lie> {};

TEST_P(HostLies, AreFoundByAFullComparison)
{
    auto const & lie = GetParam();
    run({{"lieTold", lie.told}});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), lie.verdict);
    auto const found = findings(lie.kind);
    ASSERT_FALSE(found.empty()) << json(events).dump(1);
    EXPECT_EQ(found[0]["part"], lie.part);
    EXPECT_NE(found[0]["weight"], "note");
}

TEST_P(HostLies, AreFoundByCountsWhereTheyChangeThem)
{
    auto const & lie = GetParam();
    run({{"lieTold", lie.told}, {"vmrOptVerify", "counts"}});
    EXPECT_EQ(status(), "completed");
    if (lie.counted.empty()) {
        EXPECT_EQ(verdict(), "verified") << findings().dump(1);
    } else {
        EXPECT_NE(verdict(), "verified");
        EXPECT_FALSE(findings(lie.counted).empty()) << findings().dump(1);
    }
}

TEST_P(HostLies, RemainUntoldWhenNobodyWantsToKnow)
{
    run({{"lieTold", GetParam().told}, {"vmrOptVerify", "none"}});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "");
    EXPECT_TRUE(findings().empty());
}

INSTANTIATE_TEST_SUITE_P(All, HostLies,
                         testing::Values(Lie{"drop-face", "missing-face", kit_red_name, "losses", "faces"},
                                         Lie{"move", "centroid", kit_red_name, "differs", ""},
                                         Lie{"scale", "volume", kit_red_name, "differs", ""},
                                         Lie{"turn-face", "turned-faces", kit_red_name, "differs", ""},
                                         Lie{"forget-name", "name", kit_red_name, "differs", "name"},
                                         Lie{"triangles", "triangles", "", "losses", "triangles"},
                                         Lie{"swap-colours", "colour", kit_red_name, "differs", ""},
                                         Lie{"double-instance", "extra-solid", kit_blue_name, "differs",
                                             "solids"}),
                         [](auto const & lie) {
                             auto name = lie.param.told;
                             std::erase(name, '-');
                             return name;
                         });

TEST_F(HostVerification, OfAnHonestWriterIsVerified)
{
    run({});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "verified") << findings().dump(1);
    EXPECT_TRUE(findings().empty());
    EXPECT_TRUE(has_message("Verified: "));
    EXPECT_EQ(events[events.size() - 3]["event"], "verdict");
}

TEST_F(HostVerification, ByCountsSaysSo)
{
    run({{"vmrOptVerify", "counts"}});
    EXPECT_EQ(verdict(), "verified") << findings().dump(1);
    EXPECT_TRUE(has_message("Verified by counts: "));
}

TEST_F(HostVerification, FindsChangedGeometryAlsoWithoutAPromise)
{
    run({{"lieTold", "move"}, {"liePromises", "false"}});
    EXPECT_EQ(verdict(), "differs");
    EXPECT_EQ(findings("centroid").size(), 1U);
}

TEST_F(HostVerification, AsksOnlyForGeometryWithoutAPromise)
{
    run({{"lieTold", "forget-name"}, {"liePromises", "false"}});
    EXPECT_EQ(verdict(), "verified") << findings().dump(1);
    EXPECT_TRUE(findings().empty());
}

TEST_F(HostVerification, KeepsNoFileThatNeitherReaderNorWriterVouchesFor)
{
    run({{"lieTold", "garbage"}});
    EXPECT_EQ(status(), "write_error");
    EXPECT_EQ(verdict(), "not_verified");
    EXPECT_TRUE(has_message("Not verified: %s was not written"));
    EXPECT_TRUE(findings("no-output").empty()) << "there is a reason already";
    ASSERT_EQ(findings("not-read-back").size(), 1U);
    EXPECT_EQ(findings("not-read-back")[0]["key"], "lies::%s makes no sense");
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostVerification, KeepsAFileThatItsWriterHasFoundWhole)
{
    run({{"lieTold", "garbage"}, {"lieChecked", "true"}});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "not_verified");
    EXPECT_EQ(findings("not-read-back").size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST_F(HostVerification, OutlivesACrashOfTheReader)
{
    run({{"lieReads", "crash"}, {"lieChecked", "true"}});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "not_verified");
    ASSERT_EQ(findings("not-read-back").size(), 1U);
    EXPECT_NE(findings("not-read-back")[0]["key"].get<std::string>().find("crashed over the output"),
              std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST_F(HostVerification, KeepsNoUncheckedFileThatCrashesItsReader)
{
    run({{"lieReads", "crash"}});
    EXPECT_EQ(status(), "write_error");
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(HostVerification, OutlivesAWitnessThatTalksNonsense)
{
    run({{"lieReads", "babble"}, {"lieChecked", "true"}});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "not_verified");
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST_F(HostVerification, WaitsForTheReaderOnlySoLong)
{
    job.value()["patience"] = 0.01;
    auto const begun = std::chrono::steady_clock::now();
    run({{"lieReads", "hang"}, {"lieChecked", "true"}});
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(4));
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "not_verified");
    ASSERT_EQ(findings("not-read-back").size(), 1U);
    EXPECT_NE(findings("not-read-back")[0]["key"].get<std::string>().find("took longer"), std::string::npos);
}

TEST_F(HostVerification, GivesTheReaderUpBeforeTheEngineWouldEndItAll)
{
    job.value()["patience"] = 60;
    job.value()["silence"] = 0.5;
    run({{"lieReads", "hang"}, {"lieChecked", "true"}});
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "not_verified");
    EXPECT_TRUE(std::filesystem::exists(out));
}

TEST_F(HostVerification, CannotBeOfAFormatThatNobodyReads)
{
    run({}, "DEAF");
    EXPECT_EQ(status(), "completed");
    EXPECT_EQ(verdict(), "not_verified");
    ASSERT_EQ(findings("not-read-back").size(), 1U);
    EXPECT_EQ(findings("not-read-back")[0]["args"], json({"DEAF"}));
    EXPECT_TRUE(std::filesystem::exists(out));
}
