#include "measureBodies.h"

#include "sdk/measure/sdkBodyPairs.h"
#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeBox.hxx>

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <random>

namespace {

sdkBody box(double x, double y, double z, gp_Pnt const & corner = gp::Origin())
{
    sdkBody body;
    body.measure = sdk_measure_body(BRepPrimAPI_MakeBox(corner, x, y, z).Solid(), sdkMeasureLevel::full);
    return body;
}

sdkBody at(sdkBody const & body, double x, double y, double z)
{
    auto moved = body;
    moved.measure = body.measure.placed(shifted(x, y, z).Transformation());
    return moved;
}

sdkBodies looked_at(std::vector<sdkBody> const & bodies)
{
    sdkBodies looked;
    for (auto const & body : bodies) {
        looked.push_back(&body);
    }
    return looked;
}

// The pairs point into the two, which have to live as long.
sdkBodyPairs pairs(std::vector<sdkBody> const & source, std::vector<sdkBody> const & output)
{
    return sdk_pair_bodies(looked_at(source), looked_at(output), {});
}

bool same(sdkBody const & a, sdkBody const & b)
{
    return sdk_same_body(a, b, {});
}

} // namespace

TEST(SameBody, AllowsSmallDifferencesOnly)
{
    auto const body = box(10, 20, 30);
    EXPECT_TRUE(same(body, body));
    EXPECT_TRUE(same(body, box(10 * (1 + 1e-8), 20, 30)));
    EXPECT_FALSE(same(body, box(10.0001, 20, 30)));
    EXPECT_TRUE(same(body, at(body, 5e-5, 0, 0)));
    EXPECT_FALSE(same(body, at(body, 2e-3, 0, 0)));
}

TEST(SameBody, HasToLieTheSameWay)
{
    // A cube of 10 with a step on one side, and the same turned about its centroid.
    auto const body = box(10, 20, 30, gp_Pnt(-5, -10, -15));
    auto turned = body;
    gp_Trsf quarter;
    quarter.SetRotation(gp::OZ(), std::acos(0));
    turned.measure = body.measure.placed(quarter);
    EXPECT_FALSE(same(body, turned));
}

TEST(SameBody, HasToBeTheSameSideOut)
{
    auto const body = box(10, 20, 30);
    auto inside_out = body;
    inside_out.measure.volume = -body.measure.volume;
    EXPECT_FALSE(same(body, inside_out));
}

TEST(SameBody, IsNoneWithMeasuresThatAreNoNumbers)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    auto const body = box(10, 20, 30);
    for (int which = 0; which < 4; ++which) {
        auto broken = body;
        switch (which) {
        case 0:
            broken.measure.volume = nan;
            break;
        case 1:
            broken.measure.area = nan;
            break;
        case 2:
            broken.measure.centroid.SetX(nan);
            break;
        default:
            broken.measure.moments.SetValue(2, 2, nan);
        }
        EXPECT_FALSE(same(body, broken)) << which;
        EXPECT_FALSE(same(broken, body)) << which;
        EXPECT_FALSE(same(broken, broken)) << which;
        EXPECT_TRUE(pairs({body, broken}, {broken, body, broken}).same.size() == 1U) << which;
    }
}

TEST(BodyPairs, FindWhatIsTheSameInAnyOrder)
{
    std::vector<sdkBody> source;
    for (int number = 1; number <= 20; ++number) {
        source.push_back(box(number, 2, 3, gp_Pnt(0, 10 * number, 0)));
    }
    auto output = source;
    std::shuffle(output.begin(), output.end(), std::mt19937(7));
    auto const found = pairs(source, output);
    ASSERT_EQ(found.same.size(), 20U);
    for (auto const & [from, to] : found.same) {
        EXPECT_EQ(from->measure.volume, to->measure.volume);
    }
    EXPECT_TRUE(found.other.empty() && found.missing.empty() && found.extra.empty());
}

TEST(BodyPairs, PreferTheNameAndTheColour)
{
    auto const named = [](std::string const & name, std::string const & colour) {
        auto body = box(1, 2, 3);
        body.names = {name};
        body.colours = {{colour, 22.0}};
        return body;
    };
    std::vector<sdkBody> const source{named("a", "#ff0000ff"), named("a", "#0000ffff"), named("b", "x")};
    std::vector<sdkBody> const output{named("b", "x"), named("a", "#0000ffff"), named("a", "#ff0000ff")};
    auto const found = pairs(source, output);
    ASSERT_EQ(found.same.size(), 3U);
    for (auto const & [from, to] : found.same) {
        EXPECT_EQ(from->names, to->names);
        EXPECT_EQ(from->colours, to->colours);
    }
}

TEST(BodyPairs, PreferTheNameToTheColour)
{
    auto const named = [](std::string const & name, std::string const & colour) {
        auto body = box(1, 2, 3);
        body.names = {name};
        body.colours = {{colour, 22.0}};
        return body;
    };
    std::vector const source{named("a", "x")};
    std::vector const output{named("b", "x"), named("a", "y")};
    auto const found = pairs(source, output);
    ASSERT_EQ(found.same.size(), 1U);
    EXPECT_EQ(found.same[0].second->names.count("a"), 1U);
}

TEST(BodyPairs, PreferTheNameToTheNearestOfThoseThatHaveChanged)
{
    auto wanted = box(10, 10, 10);
    wanted.names = {"wanted"};
    auto near = at(box(10, 10, 10), 1, 0, 0);
    auto far = at(wanted, 3, 0, 0);
    std::vector const source{wanted};
    std::vector const output{near, far};
    auto const found = pairs(source, output);
    ASSERT_EQ(found.other.size(), 1U);
    EXPECT_EQ(found.other[0].second->names.count("wanted"), 1U);
}

TEST(BodyPairs, FindWhatHasChangedByNameAndNearness)
{
    auto small = box(10, 10, 10);
    small.names = {"small"};
    auto large = box(40, 40, 40);
    large.names = {"large"};
    std::vector<sdkBody> const source{small, large};
    std::vector<sdkBody> const output{at(large, 1, 0, 0), at(small, 1, 0, 0)};
    auto const found = pairs(source, output);
    EXPECT_TRUE(found.same.empty());
    ASSERT_EQ(found.other.size(), 2U);
    for (auto const & [from, to] : found.other) {
        EXPECT_EQ(from->names, to->names);
    }
}

TEST(BodyPairs, LeaveAloneWhatHasNothingInCommon)
{
    std::vector const source{box(10, 10, 10)};
    std::vector const output{at(box(40, 2, 1), 500, 0, 0)};
    auto const found = pairs(source, output);
    EXPECT_EQ(found.missing.size(), 1U);
    EXPECT_EQ(found.extra.size(), 1U);
    EXPECT_TRUE(found.other.empty());
}

TEST(BodyPairs, KnowABodyThatWasDoubled)
{
    auto const body = box(10, 20, 30);
    std::vector const source{body};
    std::vector const output{body, body};
    auto const found = pairs(source, output);
    EXPECT_EQ(found.same.size(), 1U);
    EXPECT_EQ(found.extra.size(), 1U);
}

TEST(BodyPairs, KnowABodyThatLayTwiceAtOnePlace)
{
    auto const body = box(10, 20, 30);
    std::vector const source{body, body};
    std::vector const output{body};
    auto const found = pairs(source, output);
    EXPECT_EQ(found.same.size(), 1U);
    EXPECT_EQ(found.coincident.size(), 1U);
    EXPECT_TRUE(found.missing.empty());
    EXPECT_TRUE(pairs({body, body}, {body, body}).coincident.empty());
}

TEST(BodyPairs, OfThousandsOfInstancesAreFoundInASecond)
{
    // In one plane across an axis; and then all of them are moved, so that none has its like.
    std::vector<sdkBody> source;
    auto const one = box(1, 1, 1);
    for (int row = 0; row < 71; ++row) {
        for (int column = 0; column < 71; ++column) {
            source.push_back(at(one, 0, 10 * row, 10 * column));
            source.back().names = {"Screw", "Place " + std::to_string(source.size())};
        }
    }
    auto output = source;
    std::shuffle(output.begin(), output.end(), std::mt19937(7));
    auto const begun = std::chrono::steady_clock::now();
    EXPECT_EQ(pairs(source, output).same.size(), 71U * 71U);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(1));
    for (auto & body : output) {
        body = at(body, 0.5, 0, 0);
    }
    auto const again = std::chrono::steady_clock::now();
    EXPECT_TRUE(pairs(source, output).same.empty());
    EXPECT_LT(std::chrono::steady_clock::now() - again, std::chrono::seconds(1));
}

TEST(SkewPlace, IsNeverFartherApartThanThePoints)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> coordinate(-100, 100);
    auto const point = [&] { return gp_Pnt(coordinate(random), coordinate(random), coordinate(random)); };
    for (int trial = 0; trial < 1000; ++trial) {
        auto const a = point();
        auto const b = point();
        EXPECT_LE(std::abs(sdk_skew_place(a) - sdk_skew_place(b)), a.Distance(b));
    }
    EXPECT_LE(sdk_skew_place(gp_Pnt(0.5349, 0.5872, 0.6074)), 1);
}

TEST(SkewPlace, TellsThePointsOfAGridApart)
{
    for (auto const & [first, second] :
         {std::pair(gp::DX(), gp::DY()), {gp::DX(), gp::DZ()}, {gp::DY(), gp::DZ()}}) {
        std::vector<double> places;
        for (int row = 0; row < 70; ++row) {
            for (int column = 0; column < 70; ++column) {
                places.push_back(
                    sdk_skew_place(gp_Pnt(first.XYZ() * (10 * row) + second.XYZ() * (10 * column))));
            }
        }
        std::sort(places.begin(), places.end());
        std::size_t together = 0;
        for (std::size_t place = 1; place < places.size(); ++place) {
            together += places[place] - places[place - 1] < 1e-3 ? 1 : 0;
        }
        EXPECT_LT(together, places.size() / 100);
    }
}
