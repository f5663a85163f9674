#include "sdk/geometry/sdkFacets.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkTessellation.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using Points = std::vector<gp_Pnt>;
using Triangles = std::vector<Poly_Triangle>;

TopoDS_Face mesh(Points const & points, Triangles const & triangles)
{
    Handle(Poly_Triangulation) const made = new Poly_Triangulation(
        static_cast<int>(points.size()), static_cast<int>(triangles.size()), Standard_False);
    for (std::size_t at = 0; at < points.size(); ++at) {
        made->SetNode(static_cast<int>(at) + 1, points[at]);
    }
    for (std::size_t at = 0; at < triangles.size(); ++at) {
        made->SetTriangle(static_cast<int>(at) + 1, triangles[at]);
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, made);
    return face;
}

double single(double value)
{
    return static_cast<double>(static_cast<float>(value));
}

// The triangles of a shape as a binary file would have them: each with corners of its own, in single
// precision.
TopoDS_Face scan(TopoDS_Shape const & shape, double deflection = 0.1)
{
    sdk_tessellate(shape, {.linear = deflection});
    Points points;
    Triangles triangles;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        TopLoc_Location location;
        auto const & one = BRep_Tool::Triangulation(TopoDS::Face(face.Current()), location);
        for (int number = 1; number <= one->NbTriangles(); ++number) {
            std::array<int, 3> nodes{};
            one->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
            if (face.Current().Orientation() == TopAbs_REVERSED) {
                std::swap(nodes[1], nodes[2]);
            }
            int const base = static_cast<int>(points.size());
            for (auto const node : nodes) {
                auto const point = one->Node(node).Transformed(location.Transformation());
                points.emplace_back(single(point.X()), single(point.Y()), single(point.Z()));
            }
            triangles.emplace_back(base + 1, base + 2, base + 3);
        }
    }
    return mesh(points, triangles);
}

TopoDS_Wire square(double from, double to)
{
    return BRepBuilderAPI_MakePolygon(gp_Pnt(from, from, 0), gp_Pnt(to, from, 0), gp_Pnt(to, to, 0),
                                      gp_Pnt(from, to, 0), Standard_True)
        .Wire();
}

// A plate of 10 x 10 x 2 with a square hole of 4 x 4.
TopoDS_Shape plate_with_hole()
{
    BRepBuilderAPI_MakeFace face(square(0, 10));
    face.Add(TopoDS::Wire(square(3, 7).Reversed()));
    return BRepPrimAPI_MakePrism(face.Face(), gp_Vec(0, 0, 2)).Shape();
}

// What becomes of a mesh when the facets of its planes are merged; everything has to be valid.
sdkMeasures merged(TopoDS_Shape const & facets, sdkFacetCounts & counts)
{
    sdkDocument document;
    document.add_shape(facets, "Mesh");
    counts = sdk_make_facets(document, {.merge_coplanar = true});
    EXPECT_TRUE(counts.refusal.empty());
    EXPECT_TRUE(BRepCheck_Analyzer(XCAFDoc_ShapeTool::GetShape(document.parts().First())).IsValid());
    return sdk_measure(document);
}

sdkMeasures merged(TopoDS_Shape const & facets)
{
    sdkFacetCounts counts;
    return merged(facets, counts);
}

// The corners of a grid of squares of 1 x 1 and two triangles for each of its cells that `has` accepts.
template <class Has>
TopoDS_Face grid(int size, Has has)
{
    Points points;
    Triangles triangles;
    for (int y = 0; y <= size; ++y) {
        for (int x = 0; x <= size; ++x) {
            points.emplace_back(x, y, 0);
        }
    }
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            if (has(x, y)) {
                int const corner = y * (size + 1) + x + 1;
                triangles.emplace_back(corner, corner + 1, corner + size + 2);
                triangles.emplace_back(corner, corner + size + 2, corner + size + 1);
            }
        }
    }
    return mesh(points, triangles);
}

} // namespace

TEST(FacetMerge, MakesOneFaceWithAHoleOfEachPlaneRoundTheHole)
{
    auto const measures = merged(scan(plate_with_hole()));
    EXPECT_EQ(measures.solids, 1);
    EXPECT_EQ(measures.faces, 10);
    EXPECT_EQ(measures.edges, 24);
    EXPECT_EQ(measures.vertices, 16);
    EXPECT_NEAR(measures.volume, 168, 1e-9);
}

TEST(FacetMerge, FindsPlanesAmongCoordinatesOfSinglePrecision)
{
    gp_Trsf skew;
    skew.SetRotation(gp_Ax1(gp_Pnt(1, 2, 3), gp_Dir(1, 0.3, 0.7)), 0.8);
    skew.SetTranslationPart(gp_Vec(123.4, -56.7, 89.1));
    auto const measures = merged(scan(BRepBuilderAPI_Transform(plate_with_hole(), skew, Standard_True)));
    EXPECT_EQ(measures.solids, 1);
    EXPECT_EQ(measures.faces, 10);
    EXPECT_EQ(measures.edges, 24);
    EXPECT_NEAR(measures.volume, 168, 168e-6);
}

TEST(FacetMerge, LeavesOnlyTheEndsOfAStraightBorder)
{
    auto const measures = merged(grid(20, [](int, int) { return true; }));
    EXPECT_EQ(measures.faces, 1);
    EXPECT_EQ(measures.edges, 4);
    EXPECT_EQ(measures.vertices, 4);
    EXPECT_NEAR(measures.area, 400, 1e-9);
}

TEST(FacetMerge, DividesBordersThatTouchThemselves)
{
    // Two holes that touch at a corner, and one that touches the border.
    auto const has = [](int x, int y) { return !((x == 1 && y == 1) || (x == 2 && y == 2)); };
    auto const holes = merged(grid(4, has));
    EXPECT_EQ(holes.faces, 1);
    EXPECT_EQ(holes.edges, 12);
    EXPECT_NEAR(holes.area, 14, 1e-9);
    auto const cut =
        merged(grid(4, [](int x, int y) { return !((x == 0 && y == 0) || (x == 1 && y == 1)); }));
    EXPECT_EQ(cut.faces, 1);
    EXPECT_NEAR(cut.area, 14, 1e-9);
}

TEST(FacetMerge, LeavesTheFacetsOfRoundFacesAsTheyAre)
{
    auto const ball = scan(BRepPrimAPI_MakeSphere(10).Shape());
    sdkDocument document;
    document.add_shape(ball, "Ball");
    auto const apart = sdk_make_facets(document, {});
    sdkFacetCounts counts;
    auto const measures = merged(ball, counts);
    EXPECT_EQ(counts.solids, 1);
    EXPECT_GT(2 * counts.faces, apart.faces);
    EXPECT_NEAR(measures.volume, sdk_measure(document).volume, 1e-5);
}

TEST(FacetMerge, StaysWithinTheToleranceWhereFacetsAreNearlyOfOnePlane)
{
    // The strips of a finely divided cylinder turn so little that several lie in one plane.
    constexpr int strips = 5000;
    Points points{{0, 0, 0}, {0, 0, 5}};
    Triangles triangles;
    for (int at = 0; at < strips; ++at) {
        double const angle = 2 * std::numbers::pi * at / strips;
        points.emplace_back(10 * std::cos(angle), 10 * std::sin(angle), 0);
        points.emplace_back(10 * std::cos(angle), 10 * std::sin(angle), 5);
    }
    for (int at = 0; at < strips; ++at) {
        int const low = 3 + 2 * at;
        int const next = 3 + 2 * ((at + 1) % strips);
        triangles.emplace_back(low, next, next + 1);
        triangles.emplace_back(low, next + 1, low + 1);
        triangles.emplace_back(1, next, low);
        triangles.emplace_back(2, low + 1, next + 1);
    }
    auto const measures = merged(mesh(points, triangles));
    EXPECT_EQ(measures.solids, 1);
    EXPECT_LT(measures.faces, strips);
    EXPECT_NEAR(measures.volume, 500 * std::numbers::pi, 500 * std::numbers::pi * 1e-5);
}

TEST(FacetMerge, KeepsASliverBetweenTwoPlanesClosed)
{
    // The edge from 1 to 2 of a tetrahedron has a point beside it on one side only; a triangle of hardly any
    // height lies between.
    Points const points{{0, 0, 0}, {10, 0, 0}, {0, 10, 0}, {0, 0, 10}, {5, 1e-5, 0}};
    auto const measures =
        merged(mesh(points, {{1, 5, 2}, {1, 3, 5}, {5, 3, 2}, {1, 2, 4}, {1, 4, 3}, {2, 3, 4}}));
    EXPECT_EQ(measures.solids, 1);
    EXPECT_EQ(measures.faces, 4);
    EXPECT_NEAR(measures.volume, 1000.0 / 6, 1e-3);
}

TEST(FacetMerge, DoesNotMergeTrianglesThatAreFoldedBack)
{
    Points const points{{0, 0, 0}, {10, 0, 0}, {0, 10, 0}, {1, 1, 0}};
    auto const measures = merged(mesh(points, {{1, 2, 3}, {3, 2, 4}}));
    EXPECT_EQ(measures.faces, 2);
}
