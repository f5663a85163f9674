#include "sdk/sdkPlaced.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkTessellation.h"
#include "translators/kit/kitParts.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Poly_Triangulation.hxx>
#include <Standard_DomainError.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Ax2.hxx>
#include <gp_GTrsf.hxx>
#include <gtest/gtest.h>

#include <cmath>

namespace {

TopLoc_Location mirror(double x)
{
    gp_Trsf transformation;
    transformation.SetMirror(gp_Ax2(gp_Pnt(x, 0, 0), gp::DX()));
    return TopLoc_Location(transformation);
}

TopLoc_Location scale(double factor, gp_Pnt const & centre = gp_Pnt())
{
    gp_Trsf transformation;
    transformation.SetScale(centre, factor);
    return TopLoc_Location(transformation);
}

TopLoc_Location turn()
{
    gp_Trsf transformation;
    transformation.SetRotation(gp_Ax1(gp_Pnt(7, 1, 0), gp_Dir(1, 2, 3)), 1);
    return TopLoc_Location(transformation);
}

// A shape without any symmetry of its own.
TopoDS_Shape part()
{
    return kit_compound(
        {kit_cube(3), BRepPrimAPI_MakeCone(gp_Ax2(gp_Pnt(10, 2, 1), gp::DY()), 2, 1, 5).Shape()});
}

// Each vertex of the one is where the place puts that of the other.
void expect_placed(TopoDS_Shape const & placed, TopoDS_Shape const & original, TopLoc_Location const & place)
{
    auto const transformation = place.Transformation();
    double const factor = std::abs(transformation.ScaleFactor());
    auto const before = sdk_measure(original);
    auto const after = sdk_measure(placed);
    EXPECT_NEAR(after.volume, before.volume * factor * factor * factor, 1e-6 * before.volume);
    EXPECT_NEAR(after.area, before.area * factor * factor, 1e-6 * before.area);
    EXPECT_EQ(after.solids, before.solids);
    EXPECT_TRUE(BRepCheck_Analyzer(placed).IsValid());
    GProp_GProps from;
    GProp_GProps to;
    BRepGProp::VolumeProperties(original, from);
    BRepGProp::VolumeProperties(placed, to);
    EXPECT_LT(to.CentreOfMass().Distance(from.CentreOfMass().Transformed(transformation)), 1e-6);
    for (TopExp_Explorer solid(placed, TopAbs_SOLID); solid.More(); solid.Next()) {
        EXPECT_GT(sdk_measure(solid.Current()).volume, 0);
        EXPECT_EQ(sdk_scale_of(solid.Current().Location()), 1);
    }
}

} // namespace

TEST(Placed, IsMovedAndSharedWhereThePlaceIsRigid)
{
    auto const cube = kit_cube(3);
    auto const place = turn();
    EXPECT_TRUE(sdk_placed(cube, place).IsEqual(cube.Moved(place)));
    EXPECT_TRUE(sdk_placed({}, place).IsNull());
    EXPECT_TRUE(sdk_placed(cube, {}).IsEqual(cube));
}

TEST(Placed, HasScalesAndMirrorsInItsGeometry)
{
    for (auto const & place :
         {mirror(5), scale(2), scale(-0.5, gp_Pnt(1, 2, 3)), turn() * mirror(2) * scale(3) * turn()}) {
        EXPECT_THROW(part().Moved(place), Standard_DomainError) << "the toolkit itself has learnt it";
        expect_placed(sdk_placed(part(), place), part(), place);
        expect_placed(sdk_placed(part().Moved(turn()), place), part().Moved(turn()), place);
    }
}

TEST(Placed, TakesMembersThatAreMirroredAlready)
{
    BRep_Builder builder;
    TopoDS_Compound whole;
    builder.MakeCompound(whole);
    auto const cube = kit_cube(3);
    builder.Add(whole, cube);
    builder.Add(whole, cube.Moved(turn() * mirror(-10), Standard_False));
    builder.Add(whole, cube.Moved(scale(2, gp_Pnt(-20, 0, 0)), Standard_False));
    auto const placed = sdk_placed(whole, {});
    EXPECT_EQ(sdk_measure(placed).solids, 3);
    EXPECT_NEAR(sdk_measure(placed).volume, 27 + 27 + 216, 1e-9);
    for (TopoDS_Iterator member(placed); member.More(); member.Next()) {
        EXPECT_EQ(sdk_scale_of(member.Value().Location()), 1);
        EXPECT_GT(sdk_measure(member.Value()).volume, 0);
    }
    EXPECT_TRUE(TopoDS_Iterator(placed).Value().IsEqual(cube));
    expect_placed(sdk_placed(placed, mirror(1)), placed, mirror(1));
}

TEST(Placed, TurnsTheTrianglesOfFacesThatHaveNothingElse)
{
    for (auto const & place : {mirror(5), scale(-2)}) {
        auto const factor = std::abs(place.Transformation().ScaleFactor());
        auto const placed = sdk_placed(kit_facet_cube(), place);
        EXPECT_NEAR(sdk_measure(placed).volume, 1000 * factor * factor * factor, 1e-6);
        EXPECT_EQ(sdk_measure(placed).triangles, 12);
    }
}

TEST(Placed, KeepsTheTrianglesOfSurfacesOutside)
{
    auto const cone = BRepPrimAPI_MakeCone(gp_Ax2(gp_Pnt(10, 2, 1), gp::DY()), 2, 1, 5).Shape();
    sdk_tessellate(cone, {});
    auto const placed = sdk_placed(cone, mirror(5));
    for (TopExp_Explorer explorer(placed, TopAbs_FACE); explorer.More(); explorer.Next()) {
        auto const & face = TopoDS::Face(explorer.Current());
        TopLoc_Location location;
        auto const mesh = BRep_Tool::Triangulation(face, location);
        ASSERT_FALSE(mesh.IsNull());
        BRepAdaptor_Surface const surface(face);
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            auto const uv = mesh->UVNode(node);
            EXPECT_LT(surface.Value(uv.X(), uv.Y()).Distance(mesh->Node(node).Transformed(location)), 1e-9);
        }
    }
}

TEST(RigidPart, AndTheScaleMakeThePlace)
{
    for (auto const & place :
         {mirror(5), scale(2), turn(), turn() * mirror(2) * scale(3), TopLoc_Location()}) {
        gp_Pnt const point(1, 2, 3);
        auto const scaled = point.Scaled(gp_Pnt(), sdk_scale_of(place));
        EXPECT_LT(scaled.Transformed(sdk_rigid_part(place).Transformation())
                      .Distance(point.Transformed(place.Transformation())),
                  1e-12);
        EXPECT_EQ(sdk_scale_of(sdk_rigid_part(place)), 1);
    }
}

TEST(Placed, TakesAMatrixThatMirrors)
{
    gp_GTrsf matrix;
    matrix.SetValue(1, 1, -1);
    matrix.SetValue(1, 4, -5);
    matrix.SetForm();
    auto transformation = matrix.Trsf();
    transformation.SetScaleFactor(1);
    TopLoc_Location const place(transformation);
    ASSERT_FALSE(place.Transformation().IsNegative()); // the toolkit does not see it
    EXPECT_DOUBLE_EQ(sdk_scale_of(place), -1);
    EXPECT_EQ(sdk_scale_of(sdk_rigid_part(place)), 1);
    auto const placed = sdk_placed(kit_cube(10), place);
    EXPECT_NEAR(sdk_measure(placed).volume, 1000, 1e-6);
    EXPECT_NEAR(sdk_measure(placed).box.CornerMin().X(), -15, 1e-4);
    EXPECT_NEAR(sdk_measure(placed).box.CornerMax().Y(), 10, 1e-4);
}
