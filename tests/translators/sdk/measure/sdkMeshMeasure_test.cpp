#include "sdk/measure/sdkMeshMeasure.h"

#include "measureBodies.h"
#include "translators/kit/kitParts.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

#include <cmath>

namespace {

TopoDS_Face facets()
{
    return TopoDS::Face(kit_facet_cube());
}

// The cube of twelve triangles without the last so many.
TopoDS_Shape open_facets(int without)
{
    TopLoc_Location location;
    auto const whole = BRep_Tool::Triangulation(facets(), location);
    Handle(Poly_Triangulation) const part =
        new Poly_Triangulation(whole->NbNodes(), whole->NbTriangles() - without, Standard_False);
    for (int node = 1; node <= whole->NbNodes(); ++node) {
        part->SetNode(node, whole->Node(node));
    }
    for (int triangle = 1; triangle <= part->NbTriangles(); ++triangle) {
        part->SetTriangle(triangle, whole->Triangle(triangle));
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, part);
    return face;
}

} // namespace

TEST(MeshMeasure, OfACubeIsExact)
{
    for (auto const & reference : {gp_Pnt(0, 0, 0), gp_Pnt(100, -20, 7)}) {
        auto const measure = sdk_measure_mesh(facets(), reference);
        EXPECT_EQ(measure.triangles, 12);
        auto const & integrals = measure.integrals;
        EXPECT_NEAR(integrals.area, 600, 1e-9);
        EXPECT_NEAR(integrals.volume, 1000, 1e-8);
        auto const centre = gp_XYZ(5, 5, 5) - reference.XYZ();
        EXPECT_LT((integrals.area_moment / 600 - centre).Modulus(), 1e-9);
        EXPECT_LT((integrals.volume_moment / 1000 - centre).Modulus(), 1e-9);
        // About the centre: two faces at the distance of 5, and four that reach from -5 to 5.
        double const own = 2 * 100 * 25 + 4 * 100 * 100 / 12.0;
        for (int axis = 1; axis <= 3; ++axis) {
            EXPECT_NEAR(integrals.second_moment.Value(axis, axis),
                        own + 600 * std::pow(centre.Coord(axis), 2), 1e-6);
        }
        EXPECT_NEAR(integrals.second_moment.Value(1, 2), 600 * centre.X() * centre.Y(), 1e-6);
    }
}

TEST(MeshMeasure, FollowsThePlaceOfTheFace)
{
    auto const measure = sdk_measure_mesh(TopoDS::Face(facets().Moved(shifted(50))), gp::Origin());
    EXPECT_LT((measure.integrals.area_moment / 600 - gp_XYZ(55, 5, 5)).Modulus(), 1e-9);
    EXPECT_NEAR(measure.extent.CornerMax().X(), 60, 1e-6);
}

TEST(MeshMeasure, IsNegativeInsideOutAndPositiveInAMirror)
{
    EXPECT_NEAR(sdk_measure_mesh(TopoDS::Face(facets().Reversed()), gp::Origin()).integrals.volume, -1000,
                1e-9);
    gp_Trsf mirror;
    mirror.SetMirror(gp_Ax2(gp::Origin(), gp::DX()));
    auto const mirrored = facets().Moved(TopLoc_Location(mirror), Standard_False);
    EXPECT_NEAR(sdk_measure_mesh(TopoDS::Face(mirrored), gp::Origin()).integrals.volume, 1000, 1e-9);
}

TEST(UnmatchedEdges, AreNoneInAClosedMesh)
{
    EXPECT_EQ(sdk_unmatched_edges(kit_facet_cube()), 0);
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    BRepMesh_IncrementalMesh(cylinder, 0.1);
    EXPECT_EQ(sdk_unmatched_edges(cylinder), 0);
}

TEST(UnmatchedEdges, AreTheSidesOfAHole)
{
    EXPECT_EQ(sdk_unmatched_edges(open_facets(1)), 3);
    EXPECT_EQ(sdk_unmatched_edges(open_facets(2)), 4);
}

TEST(UnmatchedEdges, KnowATriangleThatLooksTheWrongWay)
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    BRepMesh_IncrementalMesh(cylinder, 0.1);
    std::vector<TopoDS_Shape> faces = {};
    for (TopExp_Explorer face(cylinder, TopAbs_FACE); face.More(); face.Next()) {
        faces.push_back(faces.empty() ? face.Current().Reversed() : face.Current());
    }
    EXPECT_GT(sdk_unmatched_edges(kit_compound(faces)), 0);
}
