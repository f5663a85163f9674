#include "sdk/geometry/sdkScale.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkTessellation.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <gtest/gtest.h>

#include <numbers>

namespace {

TopoDS_Shape moved(TopoDS_Shape const & shape, gp_Trsf const & transformation)
{
    return shape.Moved(TopLoc_Location(transformation));
}

gp_Trsf shift(double x)
{
    gp_Trsf result;
    result.SetTranslation(gp_Vec(x, 0, 0));
    return result;
}

} // namespace

TEST(Scale, MultipliesLengthsAreasAndVolumes)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(2, 5).Shape();
    auto const scaled = sdk_scaled(cylinder, 25.4);
    auto const before = sdk_measure(cylinder);
    auto const after = sdk_measure(scaled);
    double const factor = 25.4;
    EXPECT_NEAR(after.volume / (before.volume * factor * factor * factor), 1, 1e-9);
    EXPECT_NEAR(after.area / (before.area * factor * factor), 1, 1e-9);
    EXPECT_NEAR(after.box.CornerMax().Z(), 5 * factor, 1e-5);
    EXPECT_TRUE(BRepCheck_Analyzer(scaled).IsValid());
    EXPECT_NEAR(before.volume, 20 * std::numbers::pi, 1e-6);
}

TEST(Scale, ScalesMembersAboutTheOriginOfTheWholeAndKeepsThemShared)
{
    auto const cube = kit_cube(1);
    auto const whole = kit_compound({moved(cube, shift(10)), moved(cube, shift(20))});
    auto const scaled = sdk_scaled(moved(whole, shift(100)), 10);
    auto const measures = sdk_measure(scaled);
    EXPECT_NEAR(measures.box.CornerMin().X(), 1100, 1e-4);
    EXPECT_NEAR(measures.box.CornerMax().X(), 1210, 1e-4);
    EXPECT_NEAR(measures.volume, 2000, 1e-6);
    TopoDS_Iterator member(scaled);
    auto const first = member.Value();
    member.Next();
    EXPECT_TRUE(first.IsPartner(member.Value()));
}

TEST(Scale, KeepsTurnedMembersAtTheirPlaces)
{
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(gp_Pnt(7, 0, 0), gp::DZ()), 1);
    auto const placed = moved(kit_cube(3), turn);
    auto const before = sdk_measure(placed).box;
    auto const after = sdk_measure(sdk_scaled(kit_compound({placed}), 2)).box;
    EXPECT_NEAR(after.CornerMin().Distance(before.CornerMin().Scaled(gp::Origin(), 2)), 0, 1e-5);
    EXPECT_NEAR(after.CornerMax().Distance(before.CornerMax().Scaled(gp::Origin(), 2)), 0, 1e-5);
}

TEST(Scale, ScalesFacesThatHaveTrianglesOnly)
{
    auto const scaled = sdk_scaled(kit_compound({moved(kit_facet_cube(), shift(5))}), 0.1);
    auto const measures = sdk_measure(scaled);
    EXPECT_NEAR(measures.volume, 1, 1e-9);
    EXPECT_EQ(measures.triangles, 12);
    EXPECT_NEAR(measures.box.CornerMin().X(), 0.5, 1e-6);
    EXPECT_NEAR(sdk_measure(kit_facet_cube()).volume, 1000, 1e-9);
}

TEST(Scale, ScalesTheTrianglesOfFacesThatHaveSurfaces)
{
    auto const cube = kit_cube(10);
    sdk_tessellate(cube, {});
    auto const scaled = sdk_scaled(cube, 2);
    EXPECT_EQ(sdk_measure(scaled).triangles, 12);
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(scaled, TopAbs_FACE, faces);
    for (int at = 1; at <= faces.Extent(); ++at) {
        TopLoc_Location location;
        auto const face = TopoDS::Face(faces(at));
        auto const mesh = BRep_Tool::Triangulation(face, location);
        ASSERT_FALSE(mesh.IsNull());
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            auto const point = mesh->Node(node).Transformed(location.Transformation());
            bool const corner = (point.X() == 0 || point.X() == 20) && (point.Y() == 0 || point.Y() == 20);
            EXPECT_TRUE(corner);
        }
    }
}

TEST(Scale, ScalesFreeCurvesAndPoints)
{
    auto const measures = sdk_measure(sdk_scaled(kit_compound({kit_wire()}), 3));
    EXPECT_NEAR(measures.box.CornerMax().X(), 45, 1e-5);
    auto const vertex = sdk_scaled(BRepBuilderAPI_MakeVertex(gp_Pnt(1, 2, 3)).Vertex(), 3);
    EXPECT_NEAR(BRep_Tool::Pnt(TopoDS::Vertex(vertex)).Distance(gp_Pnt(3, 6, 9)), 0, 1e-12);
}

TEST(Scale, GivesTheShapeItselfForTheFactorOne)
{
    auto const cube = kit_cube(10);
    EXPECT_TRUE(sdk_scaled(cube, 1).IsEqual(cube));
    EXPECT_TRUE(sdk_scaled(TopoDS_Shape(), 2).IsNull());
}
