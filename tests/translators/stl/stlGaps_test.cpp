#include "stlFormatTest.h"

#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRep_Builder.hxx>
#include <Geom_Plane.hxx>
#include <Precision.hxx>
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
