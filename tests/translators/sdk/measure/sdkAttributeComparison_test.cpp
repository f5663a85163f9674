#include "measureBodies.h"

#include "sdk/measure/sdkAttributeComparison.h"

#include <gtest/gtest.h>

#include <limits>

class AttributeComparison : public testing::Test {
protected:
    AttributeComparison()
    {
        source.part = "Gehäuse";
        source.names = {"Gehäuse"};
        source.colours = {{"#ff0000ff", 60}, {"#00ff00ff", 40}};
        source.layers = {"1", "2"};
        output = source;
    }

    Kinds found()
    {
        std::vector<sdkFinding> findings;
        sdk_compare_attributes(source, output, promise, findings);
        EXPECT_TRUE(all_fit(findings));
        for (auto const & finding : findings) {
            EXPECT_EQ(finding.weight, sdkWeight::difference);
            EXPECT_EQ(finding.part, source.part);
        }
        return kinds(findings);
    }

    sdkBody source;
    sdkBody output;
    sdkPromise promise;
};

TEST_F(AttributeComparison, FindsNothingInWhatIsTheSame)
{
    EXPECT_TRUE(found().empty());
}

TEST_F(AttributeComparison, LooksForTheNameAmongAllAroundTheBody)
{
    output.part = "Other";
    output.names = {"Other", "Gehäuse"};
    EXPECT_TRUE(found().empty());
    output.names = {"Other"};
    EXPECT_EQ(found(), (Kinds{"name"}));
    source.part.clear();
    EXPECT_TRUE(found().empty());
}

TEST_F(AttributeComparison, KnowsNamesThatWereReducedToAscii)
{
    output.names = {"Geh_use"};
    EXPECT_EQ(found(), (Kinds{"name"}));
    promise.ascii_names = true;
    EXPECT_TRUE(found().empty());
    output.names = {"Gehuse"};
    EXPECT_EQ(found(), (Kinds{"name"}));
}

TEST_F(AttributeComparison, AllowsAStepOfRoundingInColours)
{
    output.colours = {{"#fe0000ff", 60}, {"#01ff00ff", 40}};
    EXPECT_TRUE(found().empty());
    output.colours = {{"#fd0000ff", 60}, {"#00ff00ff", 40}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
}

TEST_F(AttributeComparison, KnowsWhichShareAColourHas)
{
    output.colours = {{"#ff0000ff", 40}, {"#00ff00ff", 60}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
    output.colours = {{"#ff0000ff", 60}, {"#00ff00ff", std::numeric_limits<double>::quiet_NaN()}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
}

TEST_F(AttributeComparison, TellsALostColourAndALostTransparency)
{
    output.colours = {{"", 100}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
    output.colours = {{"#ff000080", 60}, {"#00ff00ff", 40}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
}

TEST_F(AttributeComparison, TellsAColourThatNobodyGave)
{
    source.colours = {{"", 100}};
    EXPECT_TRUE((output.colours = source.colours, found().empty()));
    output.colours = {{"#808080ff", 100}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
    promise.holds.colours = false;
    EXPECT_TRUE(found().empty());
}

TEST_F(AttributeComparison, LetsWhatIsHiddenHaveTheColourOfTheStyleThatHidesIt)
{
    source.colours = {{"", 100}};
    output.colours = {{"#ffffffff", 100}};
    source.hidden = output.hidden = true;
    EXPECT_TRUE(found().empty());
    source.colours = {{"#ff0000ff", 100}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
}

TEST_F(AttributeComparison, TellsAColourThatSpreads)
{
    source.colours = {{"", 60}, {"#ff0000ff", 40}};
    output.colours = {{"#ff0000ff", 100}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
    output.colours = {{"", 59}, {"#00ff00ff", 1}, {"#ff0000ff", 40}};
    EXPECT_EQ(found(), (Kinds{"colour"}));
}

TEST_F(AttributeComparison, WantsAllLayersButMindsNoMore)
{
    output.layers = {"1", "2", "3"};
    EXPECT_TRUE(found().empty());
    output.layers = {"2"};
    EXPECT_EQ(found(), (Kinds{"layer"}));
}

TEST_F(AttributeComparison, TellsALayerOfWhatWasInNone)
{
    source.layers.clear();
    EXPECT_EQ(found(), (Kinds{"layer"}));
    output.layers.clear();
    EXPECT_TRUE(found().empty());
}

TEST_F(AttributeComparison, NamesTheLayerThatIsGone)
{
    output.layers = {"1"};
    std::vector<sdkFinding> findings;
    sdk_compare_attributes(source, output, promise, findings);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_NE(findings[0].text.formatted().find("\"2\""), std::string::npos);
}

TEST_F(AttributeComparison, TellsVisibilityInBothDirections)
{
    output.hidden = true;
    EXPECT_EQ(found(), (Kinds{"visibility"}));
    std::swap(source.hidden, output.hidden);
    EXPECT_EQ(found(), (Kinds{"visibility"}));
}

TEST_F(AttributeComparison, AsksForNothingThatTheOutputCannotHold)
{
    output = sdkBody();
    output.hidden = true;
    EXPECT_EQ(found(), (Kinds{"colour", "layer", "name", "visibility"}));
    promise.holds.names = promise.holds.colours = promise.holds.layers = promise.holds.visibility = false;
    EXPECT_TRUE(found().empty());
}

TEST_F(AttributeComparison, OfNamesTellsEachOnce)
{
    sdkInventory first;
    first.bodies = {source, source, source};
    sdkInventory second;
    std::vector<sdkFinding> findings;
    sdk_compare_names(first, second, promise, findings);
    EXPECT_EQ(kinds(findings), (Kinds{"name"}));
    findings.clear();
    second.bodies = {output};
    sdk_compare_names(first, second, promise, findings);
    EXPECT_TRUE(findings.empty());
}

TEST(StructureComparison, MindsFewerButNotMore)
{
    sdkInventory less;
    less.assemblies = 1;
    less.instances = 3;
    sdkInventory more;
    more.assemblies = 2;
    more.instances = 4;
    std::vector<sdkFinding> findings;
    sdk_compare_structure(less, more, findings);
    sdk_compare_structure(less, less, findings);
    EXPECT_TRUE(findings.empty());
    sdk_compare_structure(more, less, findings);
    ASSERT_EQ(kinds(findings), (Kinds{"assemblies", "instances"}));
    for (auto const & finding : findings) {
        EXPECT_EQ(finding.weight, sdkWeight::loss);
    }
    EXPECT_EQ(find(findings, "instances")->source, 4);
    EXPECT_EQ(find(findings, "instances")->output, 3);
}
