#include "sdk/geometry/sdkGeneralOptions.h"

#include "translators/kit/kitParts.h"
#include "translators/kit/kitTrip.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

std::vector<sdkResource> const declared{
    {"vmrOptOutputUnits", sdkResourceType::choice, {"mm", "in"}, {}, {}, "mm"},
    {"vmrOptProcessWireframe", sdkResourceType::boolean, {}, {}, {}, "true"},
    {"vmrOptProcessSurfaces", sdkResourceType::boolean, {}, {}, {}, "true"},
    {"vmrTolTriangulate3d", sdkResourceType::real, {}, {}, {}, "0.1"},
    {"vmrTolPolygonizeCurve2d", sdkResourceType::real, {}, {}, {}, "0.01"},
    {"vmrTolPolygonizeCurve3d", sdkResourceType::real, {}, {}, {}, "0.01"}};

sdkOptions options_of(std::vector<sdkResource> const & resources, kitSide::Values const & values)
{
    std::vector<sdkText> problems;
    sdkOptions options(resources, values, problems);
    EXPECT_TRUE(problems.empty());
    return options;
}

} // namespace

TEST(GeneralOptions, ReachTheServices)
{
    auto const options = options_of(declared, {{"vmrOptOutputUnits", "in"},
                                               {"vmrOptProcessWireframe", "false"},
                                               {"vmrTolTriangulate3d", "0.5"},
                                               {"vmrTolPolygonizeCurve2d", "0.25"},
                                               {"vmrTolPolygonizeCurve3d", "0.125"}});
    EXPECT_EQ(sdk_output_unit(options).millimetres, 25.4);
    EXPECT_FALSE(sdk_entity_kinds(options).wireframe);
    EXPECT_TRUE(sdk_entity_kinds(options).surfaces);
    EXPECT_EQ(sdk_tessellation_tolerances(options, 180).linear, 0.5);
    EXPECT_EQ(sdk_tessellation_tolerances(options, 180).angular, std::numbers::pi);
    EXPECT_EQ(sdk_polyline_tolerances(options).planar, 0.25);
    EXPECT_EQ(sdk_polyline_tolerances(options).spatial, 0.125);
}

TEST(GeneralOptions, HaveTheirUsualValuesWhereAFormatDoesNotDeclareThem)
{
    auto const options = options_of({}, {});
    EXPECT_EQ(sdk_output_unit(options).millimetres, 1);
    EXPECT_TRUE(sdk_entity_kinds(options).wireframe);
    EXPECT_TRUE(sdk_entity_kinds(options).surfaces);
    EXPECT_EQ(sdk_tessellation_tolerances(options, 20).linear, 0.1);
    EXPECT_EQ(sdk_polyline_tolerances(options).planar, 0.01);
}

TEST(GeneralOptions, FilterTheDocumentAndSayWhatWentAway)
{
    auto const options = options_of(declared, {{"vmrOptProcessWireframe", "false"}});
    kitReporter reporter;
    sdkContext const context(options, reporter, "/out/part.stl");
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    document.add_shape(kit_wire(), "Sketch");
    EXPECT_EQ(sdk_filter_by_options(document, document.parts(), context).parts, 1);
    ASSERT_EQ(reporter.outputs.size(), 1U);
    EXPECT_EQ(reporter.outputs[0],
              "2 curves and 0 points are left out because wireframe is not to be processed");
    EXPECT_EQ(document.parts().Length(), 1);
}
