#include "sdk/measure/sdkMeshComparison.h"

#include "measureBodies.h"
#include "translators/kit/kitParts.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

namespace {

// Faces without surfaces, of the triangles of a meshed shape; `change` may move their nodes.
template <class Change>
TopoDS_Shape triangles_of(TopoDS_Shape const & shape, Change const & change)
{
    std::vector<TopoDS_Shape> faces;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        TopLoc_Location location;
        auto const mesh = BRep_Tool::Triangulation(TopoDS::Face(face.Current()), location)->Copy();
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            mesh->SetNode(node, change(mesh->Node(node)));
        }
        TopoDS_Face facets;
        BRep_Builder().MakeFace(facets, mesh);
        faces.push_back(facets.Oriented(face.Current().Orientation()));
    }
    return kit_compound(faces);
}

} // namespace

class MeshComparison : public testing::Test {
protected:
    MeshComparison()
    {
        BRepMesh_IncrementalMesh(rod, 0.05);
        source.add_shape(rod, "Rod");
    }

    std::vector<sdkFinding> compare(TopoDS_Shape const & output, double deflection) const
    {
        sdkDocument document;
        document.add_shape(output, "Rod");
        sdkPromise promise;
        promise.deflection = deflection;
        std::vector<sdkFinding> findings;
        sdk_compare_mesh(sdk_mesh_source(source, promise.hidden), document, promise, findings);
        EXPECT_TRUE(all_fit(findings));
        return findings;
    }

    // The triangles of all faces but one.
    TopoDS_Shape open_rod() const
    {
        std::vector<TopoDS_Shape> faces;
        auto const all = triangles_of(rod, [](gp_Pnt const & node) { return node; });
        for (TopExp_Explorer face(all, TopAbs_FACE); face.More(); face.Next()) {
            faces.push_back(face.Current());
        }
        faces.pop_back();
        return kit_compound(faces);
    }

    TopoDS_Shape const rod = BRepPrimAPI_MakeCylinder(5, 20).Shape();
    sdkDocument source;
};

TEST_F(MeshComparison, FindsNothingWithinTheDeflection)
{
    EXPECT_TRUE(compare(triangles_of(rod, [](gp_Pnt const & node) { return node; }), 0.05).empty());
}

TEST_F(MeshComparison, TellsTheFarthestPointOfAPart)
{
    auto const bent = triangles_of(rod, [](gp_Pnt const & node) {
        return node.Z() > 19.9 ? node.Translated(gp_Vec(0, 0, -0.5)) : node;
    });
    auto const findings = compare(bent, 0.05);
    ASSERT_EQ(kinds(findings), (Kinds{"deviation"}));
    EXPECT_EQ(findings[0].part, "Rod");
    EXPECT_GT(*findings[0].output, 0.45);
    EXPECT_LT(*findings[0].output, 0.55);
    EXPECT_EQ(findings[0].source, 0.05);
}

TEST_F(MeshComparison, MeasuresByTheDeflectionThatWasAskedFor)
{
    auto const same = triangles_of(rod, [](gp_Pnt const & node) { return node; });
    EXPECT_EQ(kinds(compare(same, 1e-4)), (Kinds{"deviation"}));
}

TEST_F(MeshComparison, CountsTheSidesOfAHole)
{
    auto const findings = compare(open_rod(), 50);
    ASSERT_EQ(kinds(findings), (Kinds{"unmatched-edges"}));
    EXPECT_GT(*findings[0].output, 8);
}

TEST_F(MeshComparison, MindsNoHoleWhereTheSourceIsOpen)
{
    source.add_shape(TopExp_Explorer(kit_cube(10), TopAbs_FACE).Current(), "Face");
    EXPECT_TRUE(compare(open_rod(), 1000).empty());
}

namespace {

std::vector<sdkFinding> compare_meshes(TopoDS_Shape const & source, TopoDS_Shape const & output,
                                       double deflection = 0.1)
{
    sdkDocument from;
    from.add_shape(source, "A");
    sdkDocument to;
    to.add_shape(output, "A");
    sdkPromise promise;
    promise.deflection = deflection;
    std::vector<sdkFinding> findings;
    sdk_compare_mesh(sdk_mesh_source(from, promise.hidden), to, promise, findings);
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

} // namespace

TEST_F(MeshComparison, TellsATriangleThatCameBackInsideOut)
{
    auto const findings = compare_meshes(kit_facet_cube(), kit_facet_cube_turned(1));
    ASSERT_EQ(kinds(findings), (Kinds{"unmatched-edges"}));
    EXPECT_EQ(findings[0].source, 0);
    EXPECT_EQ(findings[0].output, 6);
    EXPECT_TRUE(compare_meshes(kit_facet_cube_turned(1), kit_facet_cube_turned(1)).empty())
        << "the source was so";
    EXPECT_TRUE(compare_meshes(kit_facet_cube_turned(1), kit_facet_cube()).empty()) << "nothing is worse";
    EXPECT_EQ(kinds(compare_meshes(kit_facet_cube_turned(1), kit_facet_cube_turned(3))),
              (Kinds{"unmatched-edges"}));
}

TEST_F(MeshComparison, LetsTrianglesOfTrianglesReachNoFarther)
{
    auto const moved = kit_facet_cube().Moved(shifted(0.05));
    auto const findings = compare_meshes(kit_facet_cube(), moved, 0.1);
    ASSERT_EQ(kinds(findings), (Kinds{"extent", "extent"}));
    EXPECT_NEAR(*findings[0].output, 0.05, 1e-9);
    EXPECT_EQ(kinds(compare_meshes(kit_facet_cube(), kit_cube(10.05), 0)), (Kinds{"extent"}));
    EXPECT_TRUE(compare_meshes(kit_facet_cube(), kit_cube(10), 0).empty());
}

TEST_F(MeshComparison, TellsTrianglesThatTheSourceHasNothingLike)
{
    auto const same = triangles_of(rod, [](gp_Pnt const & node) { return node; });
    auto const findings = compare(kit_compound({same, kit_facet_cube().Moved(shifted(40))}), 0.05);
    ASSERT_EQ(kinds(findings), (Kinds{"extent"}));
    EXPECT_NEAR(*findings[0].output, 45, 1e-6);
    EXPECT_EQ(findings[0].place, "(50, 0, 0)");
}
