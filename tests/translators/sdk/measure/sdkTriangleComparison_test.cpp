#include "sdk/measure/sdkTriangleComparison.h"

#include "sdk/measure/sdkModelExtent.h"
#include "translators/kit/kitParts.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

namespace {

struct Model {
    explicit Model(TopoDS_Shape const & shape)
    {
        document.add_shape(shape, "part");
        inventory = sdk_take_inventory(document, {});
    }

    sdkMeasuredModel measured() const { return {document, inventory}; }

    sdkDocument document;
    sdkInventory inventory;
};

// The triangles of a solid without its surfaces; one of their points may be pulled out by some millimetres.
TopoDS_Shape triangles_of(TopoDS_Shape const & solid, double deflection, double spike = 0)
{
    BRepMesh_IncrementalMesh const mesher(solid, deflection);
    BRep_Builder builder;
    TopoDS_Compound mesh;
    builder.MakeCompound(mesh);
    for (TopExp_Explorer one(solid, TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        TopLoc_Location location;
        auto const facets = BRep_Tool::Triangulation(face, location)->Copy();
        for (int number = 1; face.Orientation() == TopAbs_REVERSED && number <= facets->NbTriangles();
             ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            facets->Triangle(number).Get(a, b, c);
            facets->SetTriangle(number, {a, c, b});
        }
        if (spike != 0) {
            auto const node = facets->Node(facets->NbNodes() / 2);
            facets->SetNode(facets->NbNodes() / 2, node.Translated(gp_Vec(spike, 0, 0)));
            spike = 0;
        }
        TopoDS_Face bare;
        builder.MakeFace(bare, facets);
        builder.Add(mesh, bare);
    }
    return mesh;
}

TopoDS_Shape cylinder(double radius)
{
    return BRepPrimAPI_MakeCylinder(radius, 30).Shape();
}

std::vector<std::string> kinds(std::vector<sdkFinding> const & findings)
{
    std::vector<std::string> result;
    for (auto const & finding : findings) {
        EXPECT_EQ(finding.weight, sdkWeight::difference);
        EXPECT_TRUE(finding.text.fits()) << finding.text.key();
        result.push_back(finding.kind);
    }
    return result;
}

using Kinds = std::vector<std::string>;

} // namespace

TEST(TriangleComparison, AcceptsTrianglesWithinTheDeflection)
{
    Model const surfaces(cylinder(10));
    Model const triangles(triangles_of(cylinder(10), 0.05));
    EXPECT_EQ(kinds(sdk_compare_triangles(surfaces.measured(), triangles.measured(), 0.06)), Kinds{});
    EXPECT_EQ(kinds(sdk_compare_triangles(triangles.measured(), surfaces.measured(), 0.06)), Kinds{});
}

TEST(TriangleComparison, TellsHowFarSurfacesLieOffTheTriangles)
{
    Model const surfaces(cylinder(10));
    Model const triangles(triangles_of(cylinder(10), 0.5));
    auto const findings = sdk_compare_triangles(surfaces.measured(), triangles.measured(), 0.001);
    ASSERT_FALSE(findings.empty());
    EXPECT_EQ(findings.back().kind, "deviation");
    EXPECT_EQ(findings.back().part, "part");
    EXPECT_EQ(findings.back().source, 0.001);
    EXPECT_GT(*findings.back().output, 0.05);
    EXPECT_LT(*findings.back().output, 0.6);
}

TEST(TriangleComparison, SeesAPointThatSticksOut)
{
    // The surfaces all have triangles near them; only the triangles know of the spike.
    Model const surfaces(kit_cube(100));
    auto const triangles = Model(triangles_of(kit_cube(100), 0.1, -0.9));
    auto const findings = sdk_compare_triangles(triangles.measured(), surfaces.measured(), 0.5);
    ASSERT_EQ(kinds(findings), Kinds{"deviation"});
    EXPECT_NEAR(*findings[0].output, 0.9, 0.01);
}

TEST(TriangleComparison, ComparesAreaAndVolumeWhicheverHasTheTriangles)
{
    Model const surfaces(kit_cube(10));
    Model const triangles(triangles_of(kit_cube(20), 0.1));
    auto const findings = sdk_compare_triangles(triangles.measured(), surfaces.measured(), 0.1);
    auto const found = kinds(findings);
    ASSERT_GE(found.size(), 2U);
    EXPECT_EQ(found[0], "area");
    EXPECT_NEAR(*findings[0].source, 2400, 1e-6) << "that of A, which has the triangles";
    EXPECT_NEAR(*findings[0].output, 600, 1e-6);
    EXPECT_EQ(found[1], "volume");
    EXPECT_NEAR(*findings[1].source, 8000, 1e-6);
}

TEST(ModelExtent, HoldsWhatBulgesBetweenEdges)
{
    Model const sphere(BRepPrimAPI_MakeSphere(10).Shape());
    auto const box = sdk_model_extent(sphere.document, sphere.inventory);
    for (double const corner : {box.CornerMax().X(), box.CornerMax().Y(), box.CornerMax().Z(),
                                -box.CornerMin().X(), -box.CornerMin().Y(), -box.CornerMin().Z()}) {
        EXPECT_NEAR(corner, 10, 1e-5);
    }
    Model const cube(kit_facet_cube());
    EXPECT_NEAR(sdk_model_extent(cube.document, cube.inventory).CornerMax().X(), 10, 1e-5);
    EXPECT_TRUE(sdk_model_extent(sdkDocument(), sdkInventory()).IsVoid());
}
