#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "kit/kitTempFolder.h"
#include "s2s/s2sHostJob.h"
#include "vmr/vmrResourceRegistry.h"
#include "vmr/vmrTableInstance.h"

namespace {

using nlohmann::json;

TEST(HostJob, HoldsEverythingThatTheHostNeeds)
{
    kitTempFolder const folder;
    vmrTableInstance options;
    options.initialise(folder / "none.rsc");
    options.add_resource("testHealing", "true");
    s2sTranslationElements const elements({{"/in/a.cad", &options, "/lib/a.so", 0, "A"}},
                                          {"/out/b.cad", nullptr, "/lib/b.so", nullptr, 0, "B"});
    auto const text = s2s_host_job(elements, {"/out/b.cad", "/out/.vmr-1", "/out/.vmr-1/b.cad"},
                                   {1000, 2000, std::chrono::milliseconds(2500)});
    EXPECT_EQ(text.find('\n'), std::string::npos);
    json const expected = {{"job", 1},
                           {"inputs",
                            {{{"file", "/in/a.cad"},
                              {"module", "/lib/a.so"},
                              {"format", "A"},
                              {"options", {{"testHealing", "true"}}}}}},
                           {"output",
                            {{"file", "/out/.vmr-1/b.cad"},
                             {"final", "/out/b.cad"},
                             {"module", "/lib/b.so"},
                             {"format", "B"},
                             {"options", json::object()}}},
                           {"staging", "/out/.vmr-1"},
                           {"memory_limit", 1000},
                           {"file_size_limit", 2000},
                           {"silence", 2.5}};
    EXPECT_EQ(json::parse(text), expected);
}

TEST(HostJob, MakesPathsAbsolute)
{
    s2sTranslationElements const elements({{"a.cad", nullptr, "a.so", 0, "A"}},
                                          {"b.cad", nullptr, "b.so", nullptr, 0, "B"});
    auto const job = json::parse(s2s_host_job(elements, {"/b.cad", "/.vmr-1", "/.vmr-1/b.cad"}, {}));
    EXPECT_EQ(job["inputs"][0]["file"], (std::filesystem::current_path() / "a.cad").native());
    EXPECT_EQ(job["output"]["module"], (std::filesystem::current_path() / "b.so").native());
}

TEST(HostJob, LeavesOutTheDefaultsOfOtherFormatsInAFileOfAll)
{
    vmrResourceDeclaration other;
    other.name = "testHostJobOther";
    other.default_value = "as it is";
    vmr_register_resources({other});
    kitTempFolder const folder;
    auto const sent = [&](char const * file, char const * value) {
        vmrTableInstance options;
        options.initialise(folder.write(file, std::string("testHostJobOther = ") + value + "\n").c_str());
        options.set_resource_file(utString(folder / file));
        s2sTranslationElements const elements({{"/a", &options, "/a.so", 0, "A"}},
                                              {"/b", nullptr, "/b.so", nullptr, 0, "B"});
        return json::parse(
            s2s_host_job(elements, {"/b", "/.vmr-1", "/.vmr-1/b"}, {}))["inputs"][0]["options"];
    };
    EXPECT_EQ(sent("Default", "as it is"), json::object());
    EXPECT_EQ(sent("Default", "changed"), (json{{"testHostJobOther", "changed"}}));
    EXPECT_EQ(sent("a.rsc", "as it is"), (json{{"testHostJobOther", "as it is"}}));
}

TEST(HostJob, SendsTheOverrideInPlaceOfTheValueOfTheFile)
{
    kitTempFolder const folder;
    vmrTableInstance options;
    options.initialise(folder / "none.rsc");
    options.default_table()->set_value("testTolerance", "1");
    options.default_table()->set_value("testColour", "red");
    options.add_resource("testTolerance", "2");
    s2sTranslationElements const elements({{"/a", &options, "/a.so", 0, "A"}},
                                          {"/b", nullptr, "/b.so", nullptr, 0, "B"});
    auto const job = json::parse(s2s_host_job(elements, {"/b", "/.vmr-1", "/.vmr-1/b"}, {}));
    EXPECT_EQ(job["inputs"][0]["options"], (json{{"testTolerance", "2"}, {"testColour", "red"}}));
}

TEST(HostJob, SendsRefusedOverridesBesideTheValuesThatHold)
{
    kitTempFolder const folder;
    vmrTableInstance options;
    options.initialise(folder / "none.rsc");
    options.default_table()->set_value("vmrTolTriangulate3d", "0.25");
    options.add_as_it_stands("vmrTolTriangulate3d", "1e-08");
    s2sTranslationElements const elements({{"/a", &options, "/a.so", 0, "A"}},
                                          {"/b", nullptr, "/b.so", nullptr, 0, "B"});
    auto const job = json::parse(s2s_host_job(elements, {"/b", "/.vmr-1", "/.vmr-1/b"}, {}));
    EXPECT_EQ(job["inputs"][0]["options"], (json{{"vmrTolTriangulate3d", "0.25"}}));
    EXPECT_EQ(job["inputs"][0]["refused"], (json{{"vmrTolTriangulate3d", "1e-08"}}));
    EXPECT_FALSE(job["output"].contains("refused"));
}

} // namespace
