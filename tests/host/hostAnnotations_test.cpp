#include "HostRun.h"

#include "kit/kitTempFolder.h"
#include "translators/kit/kitFault.h"

#include <gtest/gtest.h>

#include <algorithm>

using nlohmann::json;

// A source with a dimension of the whole of its part, and two of something that no output will have.
class HostAnnotations : public testing::Test {
protected:
    std::vector<json> run(json const & options, std::string const & entities)
    {
        auto text = kit_read_file(kit_fault_file("csg_block.step"));
        auto const definition = text.rfind("#", text.find("PRODUCT_DEFINITION_SHAPE("));
        auto const shape = text.substr(definition, text.find_first_of(" =", definition) - definition);
        auto const with_shape = [&](std::string line) {
            for (auto at = line.find('@'); at != std::string::npos; at = line.find('@', at)) {
                line.replace(at, 1, shape);
            }
            return line;
        };
        text.insert(text.find("DATA;") + 5, "\n" + with_shape(entities));
        std::string const module = TRANSLATORS "/step.so";
        HostJob job;
        job.input(folder.write("a.step", text), module, "STEP")
            .output(folder / "b.step", module, "STEP", options);
        HostRun host;
        host.send(job.line());
        auto events = host.rest();
        EXPECT_TRUE(host.exits_with(0));
        EXPECT_EQ(events.back()["status"], "completed");
        return events;
    }

    // The places of what is told as a lost annotation; that of a sum is empty.
    static std::vector<std::string> lost(std::vector<json> const & events)
    {
        std::vector<std::string> places;
        for (auto const & event : events) {
            if (event["event"] == "finding" && event["kind"] == "annotation") {
                EXPECT_EQ(event["weight"], "loss");
                places.push_back(event["place"]);
            }
        }
        return places;
    }

    static std::string verdict(std::vector<json> const & events)
    {
        auto const found = std::find_if(events.begin(), events.end(),
                                        [](json const & event) { return event["event"] == "verdict"; });
        return found == events.end() ? std::string() : found->value("verdict", "");
    }

    static constexpr char const * kept = "#90001=SHAPE_ASPECT('','',@,.F.);\n"
                                         "#90002=DIMENSIONAL_SIZE(#90001,'width');\n";

    kitTempFolder const folder;
};

TEST_F(HostAnnotations, AreNoLossWhereTheWriterKeepsThem)
{
    auto const events = run({{"stepWriteSchema", "AP242"}}, kept);
    EXPECT_TRUE(lost(events).empty());
    EXPECT_EQ(verdict(events), "verified");
    EXPECT_NE(kit_read_file(folder / "b.step").find("DIMENSIONAL_SIZE"), std::string::npos);
}

TEST_F(HostAnnotations, AreALossInASumWhereTheWriterKeepsNone)
{
    auto const events = run({{"stepWriteSchema", "AP214"}}, kept);
    EXPECT_EQ(lost(events), std::vector<std::string>{""});
    EXPECT_EQ(verdict(events), "losses");
}

TEST_F(HostAnnotations, AreLossesByTheirNamesWhereTheWriterKeepsOthers)
{
    auto const events = run({{"stepWriteSchema", "AP242"}},
                            std::string(kept) + "#90003=SHAPE_ASPECT('','',#90009,.F.);\n"
                                                "#90004=DIMENSIONAL_SIZE(#90003,'nothing');\n");
    EXPECT_EQ(lost(events), std::vector<std::string>{"#90004"});
    EXPECT_EQ(verdict(events), "losses");
}
