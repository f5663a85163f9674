#include "sdk/geometry/sdkTriangleGaps.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <Geom2d_Curve.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>
#include <gp_Circ.hxx>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

sdkTriangleGaps gaps(TopoDS_Shape const & shape, double deflection = 0.05)
{
    sdk_tessellate(shape, {.linear = deflection});
    return sdk_triangle_gaps(shape);
}

TopoDS_Wire circle(double radius, double start)
{
    gp_Ax2 const axes(gp::Origin(), gp::DZ(), gp_Dir(std::cos(start), std::sin(start), 0));
    return BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(gp_Circ(axes, radius)).Edge()).Wire();
}

// A tube of that thickness, whose outer and inner circles do not start at the same angle.
TopoDS_Shape thin_tube(double thickness)
{
    BRepBuilderAPI_MakeFace face(circle(10, 0));
    face.Add(TopoDS::Wire(circle(10 - thickness, 0.1).Reversed()));
    return BRepPrimAPI_MakePrism(face.Face(), gp_Vec(0, 0, 5)).Shape();
}

// A cylinder one of whose edges has no curve in the parameters of the round face.
TopoDS_Shape cylinder_without_curve()
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    for (TopExp_Explorer face(cylinder, TopAbs_FACE); face.More(); face.Next()) {
        TopExp_Explorer const edge(face.Current(), TopAbs_EDGE);
        if (BRepAdaptor_Surface(TopoDS::Face(face.Current())).GetType() == GeomAbs_Cylinder) {
            BRep_Builder().UpdateEdge(TopoDS::Edge(edge.Current()), Handle(Geom2d_Curve)(),
                                      TopoDS::Face(face.Current()), 1e-7);
        }
    }
    return cylinder;
}

std::vector<sdkOpenPart> closed(sdkDocument & document, double deflection)
{
    sdk_tessellate(document, {.linear = deflection});
    return sdk_close_triangles(document, {.linear = deflection});
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

TEST(CloseTriangles, DividesFinerWhereTheCoarseLinesOfAFaceCross)
{
    for (double const thickness : {0.02, 0.01}) {
        // The library by itself leaves the ends of the tube without triangles, and counts no face as failed.
        EXPECT_GT(gaps(thin_tube(thickness), 1).unmatched_edges, 0);
        sdkDocument document;
        document.add_shape(thin_tube(thickness), "Tube");
        EXPECT_TRUE(closed(document, 1).empty());
        EXPECT_EQ(sdk_triangle_gaps(XCAFDoc_ShapeTool::GetShape(document.parts().First())).unmatched_edges,
                  0);
    }
}

TEST(CloseTriangles, RepairsAFaceThatLacksACurve)
{
    EXPECT_GT(gaps(cylinder_without_curve()).unmatched_edges, 0);
    sdkDocument document;
    document.add_shape(cylinder_without_curve(), "Pin");
    EXPECT_TRUE(closed(document, 0.1).empty());
    auto const part = document.parts().First();
    EXPECT_EQ(sdkDocument::name(part), "Pin");
    EXPECT_EQ(sdk_triangle_gaps(XCAFDoc_ShapeTool::GetShape(part)).closed_solids, 1);
    EXPECT_EQ(sdk_count_triangles(document).failed, 0);
    EXPECT_EQ(sdk_count_triangles(document).faces, 3);
    EXPECT_NEAR(sdk_measure(document).volume, 250 * std::numbers::pi, 1e-3);
}

TEST(CloseTriangles, NamesAPartThatStaysOpen)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    document.add_shape(thin_tube(0.0005), "Tube");
    auto const open = closed(document, 1);
    ASSERT_EQ(open.size(), 1U);
    EXPECT_EQ(open.front().name, "Tube");
    EXPECT_GT(open.front().unmatched_edges, 0);
}
