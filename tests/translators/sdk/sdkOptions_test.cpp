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

TEST(Options, NameTheLimitsAndTheValueInUse)
{
    std::vector<sdkResource> const bounded{
        {"both", sdkResourceType::integer, {}, 1.0, 10.0, "3"},
        {"least", sdkResourceType::real, {}, 1e-7, {}, "0.1"},
        {"most", sdkResourceType::real, {}, {}, 0.5, "0.25"},
    };
    std::vector<sdkText> problems;
    sdkOptions const options(bounded, {{"both", "11"}, {"least", "1e-08"}, {"most", "0.75"}}, problems);
    ASSERT_EQ(problems.size(), 3U);
    EXPECT_EQ(problems[0].formatted(),
              "The value 11 of the option both is not between 1 and 10; 3 is used instead");
    EXPECT_EQ(problems[1].formatted(),
              "The value 1e-08 of the option least is less than the least one, 1e-07; 0.1 is used instead");
    EXPECT_EQ(
        problems[2].formatted(),
        "The value 0.75 of the option most is greater than the greatest one, 0.5; 0.25 is used instead");
    EXPECT_EQ(options.real("least"), 0.1);
}

TEST(Options, TellOfRefusedValuesAndKeepThoseInUse)
{
    std::vector<sdkText> problems;
    sdkOptions const options(declared, {{"count", "5"}}, problems, {{"count", "99"}, {"other", "1"}});
    EXPECT_EQ(options.integer("count"), 5);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].formatted(),
              "The value 99 of the option count is not between 1 and 10; 5 is used instead");
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
