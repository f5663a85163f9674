#include "sdk/measure/sdkEdgeDeviation.h"

#include "measureBodies.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <Geom_Circle.hxx>
#include <TopoDS.hxx>
#include <gp_Circ.hxx>
#include <gp_Cylinder.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

// A cylindrical face of radius 5 whose lower circle has another radius in space.
TopoDS_Shape with_wrong_circle(double radius)
{
    auto const face =
        BRepBuilderAPI_MakeFace(gp_Cylinder(gp_Ax3(), 5), 0, 2 * std::numbers::pi, 0, 10).Face();
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        double first = 0;
        double last = 0;
        auto const circle = Handle(Geom_Circle)::DownCast(BRep_Tool::Curve(edge, first, last));
        if (!circle.IsNull() && circle->Location().Z() < 1) {
            Handle(Geom_Circle) const wrong = new Geom_Circle(gp_Ax2(), radius);
            BRep_Builder().UpdateEdge(edge, wrong, 1e-7);
        }
    }
    return face;
}

} // namespace

TEST(EdgeDeviation, IsNoneInSoundBodies)
{
    for (auto const & body :
         {kit_cube(10), kit_hollow_cube(), BRepPrimAPI_MakeSphere(5).Shape(),
          BRepPrimAPI_MakeTorus(10, 3).Shape(), BRepPrimAPI_MakeCone(10, 4, 20).Shape()}) {
        EXPECT_LT(sdk_edge_deviation(body), 1e-9);
        EXPECT_LT(sdk_edge_deviation(BRepBuilderAPI_NurbsConvert(body, Standard_True).Shape()), 1e-5);
    }
}

TEST(EdgeDeviation, IsHowFarAnEdgeLiesOff)
{
    EXPECT_NEAR(sdk_edge_deviation(with_wrong_circle(5.3)), 0.3, 1e-9);
    EXPECT_NEAR(sdk_edge_deviation(with_wrong_circle(4.9)), 0.1, 1e-9);
}

TEST(EdgeDeviation, IsFoundOnFreeFormsToo)
{
    auto const face =
        TopoDS::Face(BRepBuilderAPI_NurbsConvert(
                         BRepBuilderAPI_MakeFace(gp_Cylinder(gp_Ax3(), 5), 0, std::numbers::pi, 0, 10).Face(),
                         Standard_True)
                         .Shape());
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        TopLoc_Location location;
        double first = 0;
        double last = 0;
        auto const & edge = TopoDS::Edge(one.Current());
        auto const curve = BRep_Tool::Curve(edge, location, first, last);
        gp_Trsf out;
        out.SetTranslation(gp_Vec(0, 0.4, 0));
        BRep_Builder().UpdateEdge(edge, Handle(Geom_Curve)::DownCast(curve->Transformed(out)), 1e-7);
    }
    EXPECT_NEAR(sdk_edge_deviation(face), 0.4, 0.02);
}

TEST(EdgeDeviation, FollowsThePlace)
{
    EXPECT_NEAR(sdk_edge_deviation(with_wrong_circle(5.3).Moved(shifted(100))), 0.3, 1e-9);
}

TEST(EdgeDeviation, IsNoneOfFacesWithoutASurface)
{
    EXPECT_EQ(sdk_edge_deviation(kit_facet_cube()), 0);
    auto const edge = BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 0), gp_Pnt(1, 0, 0)).Edge();
    EXPECT_EQ(sdk_edge_deviation(TopoDS::Face(kit_facet_cube()), edge), 0);
}
