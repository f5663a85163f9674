#include "igesBareFile.h"
#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"

#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Vertex.hxx>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

class IgesSeams : public igesFormatTest {};

namespace {

// A quarter of a torus. One of the circles at its ends begins beside the seam of the torus, so far round.
TopoDS_Shape torus_with_inexact_seam(double angle)
{
    constexpr double radius = 6;
    auto const shape = BRepPrimAPI_MakeTorus(20, radius, std::numbers::pi / 2).Shape();
    TopExp_Explorer explorer(shape, TopAbs_EDGE);
    while (!BRep_Tool::IsClosed(explorer.Current())) {
        explorer.Next();
    }
    auto const edge = TopoDS::Edge(explorer.Current().Oriented(TopAbs_FORWARD));
    double first = 0;
    double last = 0;
    auto const curve = BRep_Tool::Curve(edge, first, last);
    BRep_Builder builder;
    builder.Range(edge, first + angle, last + angle);
    builder.UpdateVertex(TopExp::FirstVertex(edge), curve->Value(first + angle), 1.1 * radius * angle + 1e-7);
    return shape;
}

// A torus of which one of the two curves of each seam on the face is moved, in the parameters of the face.
TopoDS_Shape torus_with_moved_seam(TopoDS_Shape const & torus, double angle)
{
    for (TopExp_Explorer explorer(torus, TopAbs_FACE); explorer.More(); explorer.Next()) {
        auto const face = TopoDS::Face(explorer.Current().Oriented(TopAbs_FORWARD));
        TopTools_IndexedMapOfShape edges;
        TopExp::MapShapes(face, TopAbs_EDGE, edges);
        for (int at = 1; at <= edges.Extent(); ++at) {
            auto const edge = TopoDS::Edge(edges(at).Oriented(TopAbs_FORWARD));
            if (!BRep_Tool::IsClosed(edge, face)) {
                continue;
            }
            double first = 0;
            double last = 0;
            auto const one = BRep_Tool::CurveOnSurface(edge, face, first, last);
            auto const other = BRep_Tool::CurveOnSurface(TopoDS::Edge(edge.Reversed()), face, first, last);
            BRep_Builder builder;
            builder.UpdateEdge(edge, one,
                               Handle(Geom2d_Curve)::DownCast(other->Translated(gp_Vec2d(angle, angle))),
                               face, 12 * angle);
            builder.UpdateVertex(TopExp::FirstVertex(edge), 12 * angle);
            builder.UpdateVertex(TopExp::LastVertex(edge), 12 * angle);
        }
    }
    return torus;
}

double largest_tolerance(TopoDS_Shape const & shape)
{
    double largest = 0;
    for (TopExp_Explorer edge(shape, TopAbs_EDGE); edge.More(); edge.Next()) {
        largest = std::max(largest, BRep_Tool::Tolerance(TopoDS::Edge(edge.Current())));
    }
    return largest;
}

constexpr double volume = 2 * std::numbers::pi * 20 * std::numbers::pi * 36 / 4;

} // namespace

TEST_F(IgesSeams, ThatAreInexactComeBackLooseFromTheToolkitsOwnWriter)
{
    ASSERT_TRUE(iges_bare_write(torus_with_inexact_seam(0.03), path("bare.igs")));
    EXPECT_GT(largest_tolerance(iges_bare_read(path("bare.igs"))), 0.1)
        << "the toolkit writes them well now: sdk_mend_inexact_seams is needed no more";
}

TEST_F(IgesSeams, ThatAreInexactAreWrittenAsTwoFacesWithTheirColours)
{
    sdkDocument document;
    auto const part = document.add_shape(torus_with_inexact_seam(0.03), "Torus");
    for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE); face.More(); face.Next()) {
        document.colours()->SetColor(document.shapes()->AddSubShape(part, face.Current()), kit_red(),
                                     XCAFDoc_ColorSurf);
    }
    ASSERT_TRUE(write(document, path("torus.igs")));
    EXPECT_EQ(said().failed(), 0);
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(part, details);
    EXPECT_EQ(details.Length(), 4);
    for (auto const & detail : details) {
        EXPECT_TRUE(kit_colour(document, detail).IsEqual(kit_red()));
    }
    auto const after = iges_bare_read(path("torus.igs"));
    EXPECT_LT(largest_tolerance(after), 2e-3);
    auto const measures = sdk_measure(after);
    EXPECT_EQ(measures.solids, 1);
    EXPECT_EQ(measures.faces, 4);
    EXPECT_NEAR(measures.volume, volume, 1e-6 * volume);
}

TEST_F(IgesSeams, WhoseCurvesOnTheFaceAreOffLoseTheFaceInFilesOfTheToolkitsOwnWriter)
{
    ASSERT_TRUE(iges_bare_write(torus_with_moved_seam(BRepPrimAPI_MakeTorus(20, 6), 5e-4), path("bare.igs")));
    EXPECT_LT(std::abs(sdk_measure(iges_bare_read(path("bare.igs"))).volume), 0.9 * 4 * volume)
        << "the toolkit writes them well now: moving the curves of seams is needed no more";
}

TEST_F(IgesSeams, WhoseCurvesOnTheFaceAreOffAreWrittenWithBetterOnes)
{
    for (double const angle : {5e-4, 5e-3, 3e-2}) {
        for (auto const * const solids : {"true", "false"}) {
            SCOPED_TRACE(std::to_string(angle) + " " + solids);
            auto const quarter =
                torus_with_moved_seam(BRepPrimAPI_MakeTorus(20, 6, std::numbers::pi / 2), angle);
            auto const whole = torus_with_moved_seam(BRepPrimAPI_MakeTorus(20, 6), angle);
            sdkDocument document;
            ASSERT_TRUE(write(quarter, path("quarter.igs"), {{"igesWriteSolids", solids}}));
            ASSERT_TRUE(read(path("quarter.igs"), document));
            EXPECT_EQ(sdk_measure(document).solids, 1);
            EXPECT_NEAR(sdk_measure(document).volume, volume, 1e-6 * volume);
            sdkDocument other;
            ASSERT_TRUE(write(whole, path("whole.igs"), {{"igesWriteSolids", solids}}));
            ASSERT_TRUE(read(path("whole.igs"), other));
            EXPECT_EQ(sdk_measure(other).solids, 1);
            EXPECT_NEAR(sdk_measure(other).volume, 4 * volume, 4e-6 * volume);
        }
    }
}

TEST_F(IgesSeams, ThatAreExactStay)
{
    for (auto const & shape : {torus_with_inexact_seam(0), BRepPrimAPI_MakeCylinder(5, 10).Shape()}) {
        ASSERT_TRUE(write(shape, path("exact.igs")));
        EXPECT_EQ(sdk_measure(iges_bare_read(path("exact.igs"))).faces, 3);
    }
}
