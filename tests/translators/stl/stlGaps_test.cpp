#include "stlFormatTest.h"

#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Plane.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Pln.hxx>

class StlGaps : public stlFormatTest {};

namespace {

// A prism over a line that crosses itself: a closed solid, whose two ends cannot be tessellated.
TopoDS_Shape crossed_prism()
{
    BRepBuilderAPI_MakePolygon line(gp_Pnt(0, 0, 0), gp_Pnt(10, 10, 0), gp_Pnt(10, 0, 0), gp_Pnt(0, 10, 0),
                                    Standard_True);
    BRep_Builder builder;
    TopoDS_Face face;
    builder.MakeFace(face, new Geom_Plane(gp_Pln()), Precision::Confusion());
    builder.Add(face, line.Wire());
    return BRepPrimAPI_MakePrism(face, gp_Vec(0, 0, 5)).Shape();
}

// Both halves of a cube, each with its own corner beside zero.
TopoDS_Shape torn_cube()
{
    auto const whole = TopoDS::Face(kit_facet_cube());
    TopLoc_Location location;
    auto const triangles = BRep_Tool::Triangulation(whole, location);
    std::vector<TopoDS_Shape> halves;
    for (int const half : {0, 1}) {
        Handle(Poly_Triangulation) const mesh = new Poly_Triangulation(8, 6, Standard_False);
        for (int node = 1; node <= 8; ++node) {
            auto const point = triangles->Node(node).XYZ();
            double const noise = half == 0 ? 3.552713678800501e-15 : -2.0206671876515188e-13;
            mesh->SetNode(node, point + gp_XYZ(noise, noise, noise));
        }
        for (int at = 1; at <= 6; ++at) {
            mesh->SetTriangle(at, triangles->Triangle(6 * half + at));
        }
        TopoDS_Face face;
        BRep_Builder().MakeFace(face, mesh);
        halves.push_back(face);
    }
    return kit_compound(halves);
}

} // namespace

TEST_F(StlGaps, AreToldOfEachPartWithTheNumberOfEdgesWithoutANeighbour)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Whole");
    document.add_shape(crossed_prism(), "Crossed");
    ASSERT_TRUE(write(document, path("open.stl")));
    ASSERT_EQ(account().findings().size(), 1U);
    auto const & finding = account().findings().front();
    EXPECT_EQ(finding.weight, sdkWeight::difference);
    EXPECT_EQ(finding.kind, "unmatched-edges");
    EXPECT_EQ(finding.part, "Crossed");
    EXPECT_EQ(finding.source, 0);
    EXPECT_EQ(finding.output, 8);
    EXPECT_TRUE(finding.text.fits());
    auto const text = finding.text.formatted();
    EXPECT_NE(text.find("Crossed: the triangles do not close; 8 of their edges"), std::string::npos) << text;
    EXPECT_EQ(said().failed(), 2);
}

TEST_F(StlGaps, AreNotMadeByCornersBesideZero)
{
    for (auto const * const form : {"binary", "text"}) {
        SCOPED_TRACE(form);
        ASSERT_TRUE(write(torn_cube(), path("cube.stl"), {{"stlWriteForm", form}}));
        sdkDocument document;
        ASSERT_TRUE(read(path("cube.stl"), document));
        TopLoc_Location location;
        auto const shape = XCAFDoc_ShapeTool::GetShape(document.parts().First());
        auto const face = TopoDS::Face(TopExp_Explorer(shape, TopAbs_FACE).Current());
        auto const mesh = BRep_Tool::Triangulation(face, location);
        EXPECT_EQ(mesh->NbTriangles(), 12);
        EXPECT_EQ(mesh->NbNodes(), 8);
    }
}

// What is small in a small model is no noise.
TEST_F(StlGaps, DoNotCostSmallModelsTheirShape)
{
    gp_Trsf small;
    small.SetScaleFactor(1e-9);
    auto const face = TopoDS::Face(kit_facet_cube());
    TopLoc_Location location;
    Handle(Poly_Triangulation) const mesh = BRep_Tool::Triangulation(face, location)->Copy();
    for (int node = 1; node <= mesh->NbNodes(); ++node) {
        mesh->SetNode(node, mesh->Node(node).Transformed(small));
    }
    TopoDS_Face tiny;
    BRep_Builder().MakeFace(tiny, mesh);
    ASSERT_TRUE(write(tiny, path("tiny.stl")));
    EXPECT_EQ(promise().triangles, 12);
}
