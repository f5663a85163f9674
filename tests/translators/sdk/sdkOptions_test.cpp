#include "sdk/sdkOptions.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

std::vector<sdkResource> const declared{
    {"flag", sdkResourceType::boolean, {}, {}, {}, "true"},
    {"count", sdkResourceType::integer, {}, 1.0, 10.0, "3"},
    {"size", sdkResourceType::real, {}, 0.0, {}, "0.5"},
    {"name", sdkResourceType::text, {}, {}, {}, "none"},
    {"kind", sdkResourceType::choice, {"a", "b"}, {}, {}, "a"},
};

sdkOptions options(std::map<std::string, std::string> const & values, std::vector<sdkText> & problems)
{
    return {declared, values, problems};
}

} // namespace

TEST(Options, HaveTheDefaultsOfTheManifest)
{
    std::vector<sdkText> problems;
    auto const defaults = options({}, problems);
    EXPECT_TRUE(defaults.boolean("flag"));
    EXPECT_EQ(defaults.integer("count"), 3);
    EXPECT_EQ(defaults.real("size"), 0.5);
    EXPECT_EQ(defaults.text("name"), "none");
    EXPECT_EQ(defaults.text("kind"), "a");
    EXPECT_TRUE(problems.empty());
}

TEST(Options, TakeTheValuesOfTheUser)
{
    std::vector<sdkText> problems;
    auto const given =
        options({{"flag", "false"}, {"count", "10"}, {"size", "1e-3"}, {"name", "Zoë, \"x\""}, {"kind", "b"}},
                problems);
    EXPECT_FALSE(given.boolean("flag"));
    EXPECT_EQ(given.integer("count"), 10);
    EXPECT_EQ(given.real("size"), 0.001);
    EXPECT_EQ(given.text("name"), "Zoë, \"x\"");
    EXPECT_EQ(given.text("kind"), "b");
    EXPECT_TRUE(problems.empty());
}

TEST(Options, ReportValuesThatDoNotFitAndKeepTheDefault)
{
    for (auto const & [name, value] : std::vector<std::pair<std::string, std::string>>{{"flag", "yes"},
                                                                                       {"flag", "True"},
                                                                                       {"count", "3.5"},
                                                                                       {"count", "0"},
                                                                                       {"count", "11"},
                                                                                       {"count", ""},
                                                                                       {"size", "-1"},
                                                                                       {"size", "1,5"},
                                                                                       {"size", "nan"},
                                                                                       {"size", "inf"},
                                                                                       {"kind", "c"},
                                                                                       {"kind", "A"}}) {
        std::vector<sdkText> problems;
        auto const kept = options({{name, value}}, problems);
        ASSERT_EQ(problems.size(), 1U) << name << " " << value;
        EXPECT_TRUE(problems[0].fits());
        EXPECT_NE(problems[0].formatted().find(name), std::string::npos);
        EXPECT_EQ(kept.integer("count"), 3);
        EXPECT_EQ(kept.text("kind"), "a");
    }
}

TEST(Options, ReportOptionsThatAreNotDeclared)
{
    std::vector<sdkText> problems;
    options({{"other", "1"}}, problems);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_NE(problems[0].formatted().find("other"), std::string::npos);
}

TEST(Options, PassOverGeneralOptionsThatMeanNothingToTheFormat)
{
    std::vector<sdkText> problems;
    auto const some = options({{"vmrTolTriangulate3d", "0.1"}, {"vmrOptOutputUnits", "in"}}, problems);
    EXPECT_TRUE(problems.empty());
    EXPECT_FALSE(some.declares("vmrOptOutputUnits"));
    EXPECT_TRUE(some.declares("flag"));
}

TEST(Options, ThrowWhenTheModuleAsksForWhatItDidNotDeclare)
{
    std::vector<sdkText> problems;
    auto const some = options({}, problems);
    EXPECT_THROW(some.boolean("other"), std::logic_error);
    EXPECT_THROW(some.boolean("count"), std::logic_error);
    EXPECT_THROW(some.text("size"), std::logic_error);
}

TEST(Options, ThrowWhenADefaultDoesNotFitItsType)
{
    std::vector<sdkText> problems;
    std::vector<sdkResource> const wrong{{"kind", sdkResourceType::choice, {"a"}, {}, {}, "z"}};
    EXPECT_THROW(sdkOptions(wrong, {}, problems), std::logic_error);
}
