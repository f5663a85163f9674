#include "measureBodies.h"

#include "sdk/measure/sdkDoubledTriangles.h"
#include "translators/kit/kitParts.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

namespace {

// The triangles of the facet cube and the first of them once more, beginning at another corner.
TopoDS_Shape cube_with_doubled(int doubled)
{
    TopLoc_Location location;
    Handle(Poly_Triangulation) const cube =
        BRep_Tool::Triangulation(TopoDS::Face(kit_facet_cube()), location);
    Handle(Poly_Triangulation) const mesh =
        new Poly_Triangulation(cube->NbNodes(), cube->NbTriangles() + doubled, Standard_False);
    for (int at = 1; at <= cube->NbNodes(); ++at) {
        mesh->SetNode(at, cube->Node(at));
    }
    for (int at = 1; at <= mesh->NbTriangles(); ++at) {
        int a = 0;
        int b = 0;
        int c = 0;
        bool const again = at > cube->NbTriangles();
        cube->Triangle(again ? at - cube->NbTriangles() : at).Get(a, b, c);
        mesh->SetTriangle(at, again ? Poly_Triangle(b, c, a) : Poly_Triangle(a, b, c));
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}

sdkInventory mesh_with_doubled(int doubled)
{
    return inventory_of({{"Cube", cube_with_doubled(doubled)}});
}

} // namespace

TEST(DoubledTriangles, AreTakenOnce)
{
    auto const found = sdk_take_triangles_once(mesh_with_doubled(5));
    EXPECT_EQ(found.triangles, 5);
    ASSERT_EQ(found.once.bodies.size(), 1U);
    EXPECT_NEAR(found.once.area(), 600, 1.0e-9);
    EXPECT_EQ(found.once.bodies[0].measure.triangles, 12);
    EXPECT_EQ(sdk_take_triangles_once(mesh_with_doubled(0)).triangles, 0);
}

TEST(DoubledTriangles, OfTheOtherSideAreOthers)
{
    auto inventory = mesh_with_doubled(0);
    auto const turned = inventory_of({{"Cube", kit_facet_cube().Reversed()}});
    inventory.bodies[0].shape = kit_compound({kit_facet_cube(), kit_facet_cube().Reversed()});
    EXPECT_EQ(sdk_take_triangles_once(inventory).triangles, 0);
    EXPECT_NEAR(sdk_take_triangles_once(turned).once.area(), 600, 1.0e-9);
}

TEST(DoubledTriangles, OfASourceAreNoLossWhereSurfacesStandInTheirPlace)
{
    auto const solid = inventory_of({{"Cube", kit_cube(10)}});
    for (int const doubled : {1, 12}) {
        auto const findings = sdk_compare(mesh_with_doubled(doubled), solid, everything());
        ASSERT_EQ(kinds(findings), (Kinds{"source-doubled"}));
        EXPECT_EQ(findings[0].weight, sdkWeight::note);
        EXPECT_EQ(findings[0].source, doubled);
        EXPECT_TRUE(all_fit(findings));
    }
    // What is missing besides is told.
    auto const smaller = inventory_of({{"Cube", kit_cube(9.9)}});
    EXPECT_NE(find(sdk_compare(mesh_with_doubled(12), smaller, everything()), "area"), nullptr);
    EXPECT_EQ(kinds(sdk_compare(mesh_with_doubled(0), solid, everything())), Kinds());
}

TEST(DoubledTriangles, AreLostWhereTrianglesStandForTriangles)
{
    EXPECT_NE(find(sdk_compare(mesh_with_doubled(12), mesh_with_doubled(0), everything()), "area"), nullptr);
}
