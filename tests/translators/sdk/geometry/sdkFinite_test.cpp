#include "sdk/geometry/sdkFinite.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"
#include "translators/kit/kitTrip.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <Geom_Line.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gp_Lin.hxx>

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

// A cylinder whose first edge has a curve through a point that is none.
TopoDS_Shape damaged_cylinder()
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    TopExp_Explorer const edge(cylinder, TopAbs_EDGE);
    BRep_Builder().UpdateEdge(TopoDS::Edge(edge.Current()),
                              new Geom_Line(gp_Pnt(none, 0, 0), gp_Dir(0, 0, 1)), 1e-7);
    return cylinder;
}

} // namespace

TEST(SdkIsFinite, IsTrueOfSoundShapesAndOfThoseWithoutEnd)
{
    EXPECT_TRUE(sdk_is_finite(TopoDS_Shape()));
    EXPECT_TRUE(sdk_is_finite(BRepPrimAPI_MakeCylinder(5, 10).Shape()));
    EXPECT_TRUE(sdk_is_finite(BRepBuilderAPI_MakeEdge(gp_Lin()).Edge()));
}

TEST(SdkIsFinite, IsFalseOfPointsCurvesAndTolerancesThatAreNone)
{
    EXPECT_FALSE(sdk_is_finite(BRepBuilderAPI_MakeVertex(gp_Pnt(0, none, 0)).Vertex()));
    EXPECT_FALSE(sdk_is_finite(BRepBuilderAPI_MakeVertex(gp_Pnt(0, 0, 1e16)).Vertex()));
    EXPECT_FALSE(sdk_is_finite(damaged_cylinder()));
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    TopExp_Explorer const face(cylinder, TopAbs_FACE);
    BRep_Builder().UpdateFace(TopoDS::Face(face.Current()), std::numeric_limits<double>::infinity());
    EXPECT_FALSE(sdk_is_finite(cylinder));
}

TEST(SdkDropNotFinite, LeavesTheSoundFacesAndOtherPartsAndTellsOfTheRest)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "sound");
    document.add_shape(damaged_cylinder(), "damaged");
    std::vector<sdkText> problems;
    sdkOptions const options({}, {}, problems);
    kitReporter reporter;
    sdkContext context(options, reporter, "a.brep");
    EXPECT_EQ(sdk_drop_not_finite(document, context), 2);
    EXPECT_EQ(document.count_entities().faces, 7);
    EXPECT_EQ(reporter.failed(), 2);
    ASSERT_EQ(context.account().findings().size(), 1u);
    auto const & finding = context.account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::loss);
    EXPECT_EQ(finding.part, "damaged");
    EXPECT_NE(finding.text.formatted().find("2 faces, curves or points of \"damaged\" are left out"),
              std::string::npos);
    EXPECT_EQ(sdk_drop_not_finite(document, context), 0);
}

TEST(SdkDropNotFinite, DropsAPartOfWhichNothingIsLeft)
{
    sdkDocument document;
    document.add_shape(BRepBuilderAPI_MakeVertex(gp_Pnt(0, none, 0)).Vertex(), "point");
    std::vector<sdkText> problems;
    sdkOptions const options({}, {}, problems);
    kitReporter reporter;
    sdkContext context(options, reporter, "a.brep");
    EXPECT_EQ(sdk_drop_not_finite(document, context), 1);
    EXPECT_TRUE(document.empty());
}
