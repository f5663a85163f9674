#include "igesBareFile.h"
#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkTessellation.h"
#include "sdk/measure/sdkEdgeDeviation.h"
#include "translators/kit/kitFault.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <Geom_Ellipse.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <numbers>

class IgesEllipses : public igesFormatTest {
protected:
    // The shape that another reader finds in the file that is written.
    TopoDS_Shape trip(TopoDS_Shape const & shape)
    {
        EXPECT_TRUE(write(shape, path("ellipse.igs")));
        EXPECT_EQ(said().failed(), 0);
        return iges_bare_read(path("ellipse.igs"));
    }

    static TopoDS_Edge ellipse(double begin, gp_Ax2 const & axes = {})
    {
        Handle(Geom_Ellipse) const curve = new Geom_Ellipse(axes, 20, 10);
        return BRepBuilderAPI_MakeEdge(curve, begin, begin + 2 * std::numbers::pi);
    }

    static TopoDS_Face disk(TopoDS_Edge const & edge)
    {
        return BRepBuilderAPI_MakeFace(BRepBuilderAPI_MakeWire(edge).Wire());
    }
};

namespace {

// The signed volume within the triangles: what the edges enclose, wherever the surfaces go on.
double meshed_volume(TopoDS_Shape const & shape)
{
    sdk_tessellate(shape, {0.01, 0.1});
    return sdk_measure(shape).volume;
}

void expect_right(TopoDS_Shape const & shape, double volume)
{
    ASSERT_FALSE(shape.IsNull());
    EXPECT_LT(sdk_edge_deviation(shape), 1e-4);
    auto const measures = sdk_measure(shape);
    EXPECT_EQ(measures.solids, 1);
    EXPECT_NEAR(measures.volume, volume, 1e-6 * volume);
    EXPECT_NEAR(meshed_volume(shape), volume, 1e-3 * volume);
}

} // namespace

TEST_F(IgesEllipses, AreTurnedByTheToolkitsOwnWriter)
{
    ASSERT_TRUE(iges_bare_write(kit_fault("ellprism45.brep"), path("bare.igs")));
    EXPECT_GT(sdk_edge_deviation(iges_bare_read(path("bare.igs"))), 1)
        << "the toolkit writes them right now: sdk_divide_turned_ellipses is needed no more";
}

TEST_F(IgesEllipses, KeepTheirEdgesOnTheirFacesWhereverTheyBegin)
{
    expect_right(trip(kit_fault("ellprism45.brep")), 6283.185307);
    expect_right(trip(kit_fault("ellprism180.brep")), 6283.185307);
    expect_right(trip(kit_fault("plate_oblique_hole.brep")), 91837.90286);
    for (double const begin : {-2.0, 0.0, 0.2, 1.5707963, 3.9, 5.0, 6.2}) {
        SCOPED_TRACE(begin);
        expect_right(trip(BRepPrimAPI_MakePrism(disk(ellipse(begin)), gp_Vec(0, 0, 10)).Shape()),
                     2000 * std::numbers::pi);
    }
}

TEST_F(IgesEllipses, KeepTheSurfaceThatTheyMakeAboutAnAxis)
{
    gp_Ax2 const axes(gp_Pnt(50, 0, 0), gp::DY());
    for (double const begin : {0.0, 1.0, 4.0}) {
        SCOPED_TRACE(begin);
        auto const ring = BRepPrimAPI_MakeRevol(disk(ellipse(begin, axes)), gp::OZ(), 2.0).Shape();
        expect_right(trip(ring), 200 * std::numbers::pi * 50 * 2);
    }
}

TEST_F(IgesEllipses, StayWhereTheyAreWithoutFaces)
{
    auto const edge = ellipse(0.7, gp_Ax2(gp_Pnt(1, 2, 3), gp_Dir(1, 1, 0)));
    auto const wire = BRepBuilderAPI_MakeWire(edge).Wire();
    for (auto const & shape : {TopoDS_Shape(edge), TopoDS_Shape(wire), edge.Reversed()}) {
        auto const after = trip(shape);
        auto const before_box = sdk_measure(shape).box;
        auto const after_box = sdk_measure(after).box;
        EXPECT_LT(after_box.CornerMin().Distance(before_box.CornerMin()), 1e-3);
        EXPECT_LT(after_box.CornerMax().Distance(before_box.CornerMax()), 1e-3);
    }
}

TEST_F(IgesEllipses, AreDividedOnlyWhereItIsNeeded)
{
    auto const edges_of = [](TopoDS_Shape const & shape) {
        TopTools_IndexedMapOfShape edges;
        TopExp::MapShapes(shape, TopAbs_EDGE, edges);
        return edges.Extent();
    };
    EXPECT_EQ(edges_of(trip(BRepPrimAPI_MakePrism(disk(ellipse(0)), gp_Vec(0, 0, 10)).Shape())), 3);
    EXPECT_EQ(edges_of(trip(BRepPrimAPI_MakePrism(disk(ellipse(1)), gp_Vec(0, 0, 10)).Shape())), 5);
}

TEST_F(IgesEllipses, KeepTheColoursOfTheirFaces)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_fault("ellprism45.brep"), "Prism");
    for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE); face.More(); face.Next()) {
        document.colours()->SetColor(document.shapes()->AddSubShape(part, face.Current()), kit_red(),
                                     XCAFDoc_ColorSurf);
    }
    ASSERT_TRUE(write(document, path("red.igs")));
    sdkDocument after;
    ASSERT_TRUE(read(path("red.igs"), after));
    ASSERT_EQ(after.parts().Length(), 1);
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(after.parts().First(), details);
    EXPECT_TRUE(kit_colour(after, after.parts().First()).IsEqual(kit_red()));
}
