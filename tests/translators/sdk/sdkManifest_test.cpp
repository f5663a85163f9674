#include "sdk/sdkManifest.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * whole = R"({"interface": 1, "formats": [{
 "name": "STEP", "filter": "f", "extensions": ["stp"], "sides": ["input"], "resources": [
  {"name": "flag", "type": "boolean", "default": true},
  {"name": "size", "type": "real", "minimum": 0, "maximum": 2.5, "default": 1e-3},
  {"name": "count", "type": "integer", "default": 4},
  {"name": "kind", "type": "choice", "values": ["a", "b"], "default": "b"},
  {"name": "name", "type": "text", "default": ""}]}]})";

} // namespace

TEST(Manifest, ReadsFormatsAndResources)
{
    kitTempFolder const folder;
    sdkManifest manifest;
    ASSERT_EQ(manifest.load(folder.write("m.json", whole)), "");
    EXPECT_EQ(manifest.interface_version(), 1);
    auto const * const format = manifest.format("STEP");
    ASSERT_NE(format, nullptr);
    EXPECT_TRUE(format->reads);
    EXPECT_FALSE(format->writes);
    ASSERT_EQ(format->resources.size(), 5U);
    EXPECT_EQ(format->resources[0].default_value, "true");
    EXPECT_EQ(format->resources[1].maximum, 2.5);
    EXPECT_EQ(format->resources[1].default_value, "0.001");
    EXPECT_FALSE(format->resources[2].minimum);
    EXPECT_EQ(format->resources[3].values, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(manifest.format("step"), nullptr);
}

TEST(Manifest, SaysWhatIsWrong)
{
    kitTempFolder const folder;
    sdkManifest manifest;
    EXPECT_NE(manifest.load(folder / "absent.json").find("cannot be opened"), std::string::npos);
    for (
        char const * const text :
        {"", "{", "{}", R"({"interface": "1"})", R"({"interface": 1})",
         R"({"interface": 1, "formats": [{"name": "X"}]})",
         R"({"interface":1,"formats":[{"name":"X","sides":[],"resources":[{"name":"a","type":"odd","default":1}]}]})",
         R"({"interface":1,"formats":[{"name":"X","sides":[],"resources":[{"name":"a","type":"text"}]}]})"}) {
        EXPECT_NE(manifest.load(folder.write("m.json", text)).find("is not valid"), std::string::npos)
            << text;
    }
}

// The general options mean the same everywhere, so their declarations must not differ between formats.
TEST(Manifest, OfStepAndIgesDeclareTheGeneralOptionsAlike)
{
    sdkManifest step;
    sdkManifest iges;
    ASSERT_EQ(step.load(TRANSLATOR_SOURCES "/step/step.json"), "");
    ASSERT_EQ(iges.load(TRANSLATOR_SOURCES "/iges/iges.json"), "");
    int compared = 0;
    for (auto const & one : step.format("STEP")->resources) {
        for (auto const & other : iges.format("IGES")->resources) {
            if (one.name == other.name) {
                EXPECT_TRUE(one.name.starts_with("vmr")) << one.name;
                EXPECT_EQ(one.type, other.type) << one.name;
                EXPECT_EQ(one.values, other.values) << one.name;
                EXPECT_EQ(one.minimum, other.minimum) << one.name;
                EXPECT_EQ(one.default_value, other.default_value) << one.name;
                ++compared;
            }
        }
    }
    EXPECT_EQ(compared, 7);
}
