#include "sdk/geometry/sdkFacets.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <gtest/gtest.h>

namespace {

// The triangles of a shape in a face of its own without a surface.
TopoDS_Face facets_of(TopoDS_Shape const & shape, double deflection)
{
    BRepMesh_IncrementalMesh const mesher(shape, deflection);
    std::vector<gp_Pnt> nodes;
    std::vector<Poly_Triangle> triangles;
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
        TopLoc_Location location;
        auto const mesh = BRep_Tool::Triangulation(TopoDS::Face(explorer.Current()), location);
        int const base = static_cast<int>(nodes.size());
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            nodes.push_back(mesh->Node(node).Transformed(location.Transformation()));
        }
        for (int number = 1; number <= mesh->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            bool const turned = explorer.Current().Orientation() == TopAbs_REVERSED;
            triangles.emplace_back(base + a, base + (turned ? c : b), base + (turned ? b : c));
        }
    }
    Handle(Poly_Triangulation) const all = new Poly_Triangulation(
        static_cast<int>(nodes.size()), static_cast<int>(triangles.size()), Standard_False);
    for (std::size_t at = 0; at < nodes.size(); ++at) {
        all->SetNode(static_cast<int>(at) + 1, nodes[at]);
    }
    for (std::size_t at = 0; at < triangles.size(); ++at) {
        all->SetTriangle(static_cast<int>(at) + 1, triangles[at]);
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, all);
    return face;
}

TopoDS_Face mesh_face(std::vector<gp_Pnt> const & nodes, std::vector<Poly_Triangle> const & triangles)
{
    Handle(Poly_Triangulation) const mesh = new Poly_Triangulation(
        static_cast<int>(nodes.size()), static_cast<int>(triangles.size()), Standard_False);
    for (std::size_t at = 0; at < nodes.size(); ++at) {
        mesh->SetNode(static_cast<int>(at) + 1, nodes[at]);
    }
    for (std::size_t at = 0; at < triangles.size(); ++at) {
        mesh->SetTriangle(static_cast<int>(at) + 1, triangles[at]);
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}

void turn_triangle(TopoDS_Shape const & face, int number)
{
    TopLoc_Location location;
    auto const mesh = BRep_Tool::Triangulation(TopoDS::Face(face), location);
    int a = 0;
    int b = 0;
    int c = 0;
    mesh->Triangle(number).Get(a, b, c);
    mesh->SetTriangle(number, Poly_Triangle(a, c, b));
}

TopoDS_Shape part_shape(sdkDocument const & document)
{
    return XCAFDoc_ShapeTool::GetShape(document.parts().First());
}

} // namespace

TEST(Facets, MakesASolidOfTwelveFacesOfTheMeshOfACube)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube(), "Cube");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.parts, 1);
    EXPECT_EQ(counts.triangles, 12);
    EXPECT_EQ(counts.faces, 12);
    EXPECT_EQ(counts.solids, 1);
    EXPECT_EQ(counts.shells, 0);
    EXPECT_EQ(part_shape(document).ShapeType(), TopAbs_SOLID);
    EXPECT_TRUE(BRepCheck_Analyzer(part_shape(document)).IsValid());
    auto const measures = sdk_measure(document);
    EXPECT_NEAR(measures.volume, 1000, 1e-9);
    EXPECT_NEAR(measures.area, 600, 1e-9);
    EXPECT_EQ(measures.edges, 18);
    EXPECT_EQ(measures.vertices, 8);
    EXPECT_EQ(sdkDocument::name(document.parts().First()), "Cube");
}

TEST(Facets, MergesFacetsOfOnePlane)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube(), "Cube");
    auto const counts = sdk_make_facets(document, {.merge_coplanar = true});
    EXPECT_EQ(counts.faces, 6);
    EXPECT_EQ(counts.solids, 1);
    auto const measures = sdk_measure(document);
    EXPECT_EQ(measures.faces, 6);
    EXPECT_EQ(measures.edges, 12);
    EXPECT_NEAR(measures.volume, 1000, 1e-9);
    EXPECT_TRUE(BRepCheck_Analyzer(part_shape(document)).IsValid());
}

TEST(Facets, LeavesAShellWhenNoSolidsAreWanted)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube(), "Cube");
    auto const counts = sdk_make_facets(document, {.solids = false});
    EXPECT_EQ(counts.solids, 0);
    EXPECT_EQ(counts.shells, 1);
    EXPECT_EQ(part_shape(document).ShapeType(), TopAbs_SHELL);
}

TEST(Facets, JoinsThePointsThatFacesOfAMeshHaveInCommon)
{
    sdkDocument document;
    document.add_shape(facets_of(BRepPrimAPI_MakeSphere(10).Shape(), 0.1), "Ball");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.solids, 1);
    EXPECT_EQ(counts.shells, 0);
    EXPECT_EQ(counts.faces + counts.dropped, counts.triangles);
    EXPECT_NEAR(sdk_measure(document).volume, 4188.79, 84);
}

TEST(Facets, TurnsASolidOutwardWhoseTrianglesAllLookInward)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube().Reversed(), "Inside out");
    EXPECT_EQ(sdk_make_facets(document, {}).solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-9);
}

TEST(Facets, TurnsTheFewTrianglesThatLookToTheOtherSide)
{
    auto const face = kit_facet_cube();
    turn_triangle(face, 3);
    turn_triangle(face, 8);
    sdkDocument document;
    document.add_shape(face, "Cube");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.turned, 2);
    EXPECT_EQ(counts.solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-9);
    EXPECT_TRUE(BRepCheck_Analyzer(part_shape(document)).IsValid());
}

TEST(Facets, MakesACavityOfAMeshThatLooksInwardInsideAnother)
{
    sdkDocument document;
    document.add_shape(facets_of(kit_hollow_cube(), 1), "Hollow");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.solids, 1);
    auto const measures = sdk_measure(document);
    EXPECT_EQ(measures.shells, 2);
    EXPECT_NEAR(measures.volume, 8000 - 1000, 1e-6);
}

TEST(Facets, MakesTwoSolidsOfCubesThatTouchAlongAnEdge)
{
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(10, 10, 0));
    sdkDocument document;
    document.add_shape(facets_of(kit_compound({kit_cube(10), kit_cube(10).Moved(TopLoc_Location(shift))}), 1),
                       "Two");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.solids, 2);
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-9);
}

TEST(Facets, KeepsAnOpenMeshAsAShell)
{
    sdkDocument document;
    document.add_shape(mesh_face({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 1}}, {{1, 2, 3}, {1, 3, 4}}),
                       "Open");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.solids, 0);
    EXPECT_EQ(counts.shells, 1);
    EXPECT_EQ(sdk_measure(document).edges, 5);
}

TEST(Facets, SewsACornerToTheMiddleOfAnEdge)
{
    // The bottom is one triangle, and the side beside its first edge is divided at the middle of that edge.
    std::vector<gp_Pnt> const nodes{{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 2}, {1, 0, 0}};
    sdkDocument document;
    document.add_shape(mesh_face(nodes, {{1, 3, 2}, {1, 5, 4}, {5, 2, 4}, {1, 4, 3}, {2, 3, 4}}), "Divided");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 8.0 / 6, 1e-6);
}

TEST(Facets, DropsTrianglesWithoutAreaAndCountsThem)
{
    sdkDocument document;
    document.add_shape(
        mesh_face({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {2, 0, 0}}, {{1, 2, 3}, {1, 2, 4}, {1, 1, 3}}), "Part");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.triangles, 3);
    EXPECT_EQ(counts.dropped, 2);
    EXPECT_EQ(counts.faces, 1);
}

TEST(Facets, TakesTrianglesOnceThatAreThereTwice)
{
    std::vector<gp_Pnt> const points{{0, 0, 0}, {6, 0, 0}, {0, 6, 0}, {0, 0, 6}};
    std::vector<Poly_Triangle> triangles{{1, 3, 2}, {1, 2, 4}, {2, 3, 4}, {1, 4, 3}};
    for (auto const & again : std::vector<Poly_Triangle>{{3, 2, 1}, {4, 1, 2}, {2, 3, 4}, {1, 4, 3}}) {
        triangles.push_back(again);
    }
    sdkDocument document;
    document.add_shape(mesh_face(points, triangles), "Part");
    auto const counts = sdk_make_facets(document, {});
    EXPECT_EQ(counts.triangles, 8);
    EXPECT_EQ(counts.doubled, 4);
    EXPECT_EQ(counts.faces, 4);
    EXPECT_EQ(counts.solids, 1);
    EXPECT_NEAR(sdk_measure(document).volume, 36, 1e-9);
}

TEST(Facets, RefusesMoreTrianglesThanTheLimitAndChangesNothing)
{
    sdkDocument document;
    document.add_shape(kit_facet_cube(), "Cube");
    auto const counts = sdk_make_facets(document, {.max_facets = 11, .max_option = "xWriteMaxFacets"});
    EXPECT_EQ(counts.refusal.formatted(),
              "There are 12 triangles to make faces of, and the limit is 11; reduce the mesh, "
              "raise the option xWriteMaxFacets, or write a mesh format");
    EXPECT_EQ(document.count_entities().facets_only, 1);
    EXPECT_TRUE(sdk_make_facets(document, {.max_facets = 12}).refusal.empty());
}

TEST(Facets, KeepsTheFacesOfAPartThatHaveSurfaces)
{
    sdkDocument document;
    document.add_shape(kit_compound({kit_cube(5), kit_facet_cube()}), "Mixed");
    EXPECT_EQ(sdk_make_facets(document, {}).faces, 12);
    auto const measures = sdk_measure(document);
    EXPECT_EQ(measures.faces, 18);
    EXPECT_EQ(measures.solids, 2);
    EXPECT_NEAR(measures.volume, 1125, 1e-9);
}

TEST(Facets, TakesOnlyTheMeshOutOfAShellThatHasBoth)
{
    auto const mesh = kit_facet_cube();
    BRep_Builder builder;
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    builder.Add(shell, TopExp_Explorer(kit_cube(5), TopAbs_FACE).Current());
    builder.Add(shell, mesh);
    sdkDocument document;
    document.add_shape(shell, "Both");
    sdk_make_facets(document, {});
    EXPECT_EQ(document.count_entities().facets_only, 0);
    EXPECT_EQ(document.count_entities().faces, 13);
}

TEST(Facets, LetsTheColourOfAMeshFollowToItsSolid)
{
    sdkDocument document;
    auto const red = kit_facet_cube();
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(50, 0, 0));
    auto const plain = kit_facet_cube().Moved(TopLoc_Location(shift));
    auto const label = document.add_shape(kit_compound({red, plain}), "Two");
    document.colours()->SetColor(document.shapes()->AddSubShape(label, red), kit_red(), XCAFDoc_ColorSurf);
    EXPECT_EQ(sdk_make_facets(document, {}).solids, 2);
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(document.parts().First(), details);
    ASSERT_EQ(details.Length(), 1);
    EXPECT_EQ(XCAFDoc_ShapeTool::GetShape(details.First()).ShapeType(), TopAbs_SOLID);
    EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(kit_red()));
}

TEST(Facets, DescribesThePartsThatNeedThemForAFormatThatCannotHoldMeshes)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Solid");
    EXPECT_TRUE(sdk_facet_parts(document).empty());
    EXPECT_TRUE(sdk_facets_refused({}, "STEP", "stepWriteFacets").empty());
    document.add_shape(kit_facet_cube(), "Mesh");
    auto const parts = sdk_facet_parts(document);
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_EQ(parts[0].name, "Mesh");
    EXPECT_EQ(parts[0].faces, 1);
    EXPECT_EQ(parts[0].triangles, 12);
    auto const text = sdk_facets_refused(parts, "STEP", "stepWriteFacets");
    EXPECT_TRUE(text.fits());
    EXPECT_NE(text.formatted().find("1 of them with 12 triangles in 1 parts, the first of which is \"Mesh\""),
              std::string::npos);
    EXPECT_NE(text.formatted().find("stepWriteFacets"), std::string::npos);
}
