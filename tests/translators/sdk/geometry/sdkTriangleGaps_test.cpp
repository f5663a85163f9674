#include "sdk/geometry/sdkTriangleGaps.h"

#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gtest/gtest.h>

namespace {

sdkTriangleGaps gaps(TopoDS_Shape const & shape, double deflection = 0.05)
{
    sdk_tessellate(shape, {.linear = deflection});
    return sdk_triangle_gaps(shape);
}

} // namespace

TEST(TriangleGaps, AreNotInSolidsWithSeamsPolesAndCavities)
{
    for (auto const & shape :
         {kit_cube(10), BRepPrimAPI_MakeSphere(10).Shape(), BRepPrimAPI_MakeCone(0, 5, 10).Shape(),
          BRepPrimAPI_MakeCylinder(5, 10).Shape(), BRepPrimAPI_MakeTorus(20, 5).Shape(), kit_hollow_cube(),
          BRepPrimAPI_MakeCylinder(5, 10).Shape().Reversed()}) {
        auto const found = gaps(shape);
        EXPECT_EQ(found.closed_solids, 1);
        EXPECT_EQ(found.unmatched_edges, 0);
    }
    EXPECT_EQ(gaps(kit_compound({kit_cube(10), BRepPrimAPI_MakeSphere(3).Shape()})).closed_solids, 2);
}

TEST(TriangleGaps, AreTheEdgesOfAFaceThatHasNoTriangles)
{
    auto const cube = kit_cube(10);
    gaps(cube);
    TopExp_Explorer const face(cube, TopAbs_FACE);
    BRep_Builder().UpdateFace(TopoDS::Face(face.Current()), Handle(Poly_Triangulation)());
    EXPECT_EQ(sdk_triangle_gaps(cube).unmatched_edges, 4);
}

TEST(TriangleGaps, AreNotCountedWhereTheSolidIsOpenItself)
{
    BRep_Builder builder;
    TopoDS_Shell shell;
    TopoDS_Solid solid;
    builder.MakeShell(shell);
    builder.MakeSolid(solid);
    auto const cube = kit_cube(10);
    TopExp_Explorer face(cube, TopAbs_FACE);
    for (face.Next(); face.More(); face.Next()) {
        builder.Add(shell, face.Current());
    }
    builder.Add(solid, shell);
    EXPECT_EQ(gaps(solid).closed_solids, 0);
    EXPECT_EQ(gaps(solid).unmatched_edges, 0);
}
