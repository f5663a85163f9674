#include "sdk/measure/sdkSourceFaults.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRep_Builder.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <gp_Pln.hxx>
#include <gtest/gtest.h>

namespace {

TopoDS_Wire square(double from, double to, double z)
{
    BRepBuilderAPI_MakePolygon polygon;
    for (auto const & [x, y] : {std::pair(from, from), {to, from}, {to, to}, {from, to}}) {
        polygon.Add(gp_Pnt(x, y, z));
    }
    polygon.Close();
    return polygon.Wire();
}

// Two squares side by side, both of which are said to be the outer boundary.
TopoDS_Shape face_with_two_outer_boundaries()
{
    BRepBuilderAPI_MakeFace face(gp_Pln(gp_Pnt(0, 0, 7), gp::DZ()), square(0, 10, 7));
    face.Add(square(20, 30, 7));
    return face.Face();
}

// A cube without one of its faces.
TopoDS_Shape open_shell()
{
    TopoDS_Shell shell;
    BRep_Builder builder;
    builder.MakeShell(shell);
    TopExp_Explorer face(kit_cube(10), TopAbs_FACE);
    for (face.Next(); face.More(); face.Next()) {
        builder.Add(shell, face.Current());
    }
    return shell;
}

} // namespace

TEST(SourceFaults, ThereAreNoneInSoundParts)
{
    sdkDocument document;
    kit_add_assembly(document);
    document.add_shape(kit_hollow_cube(), "Hollow");
    document.add_shape(kit_wire(), "Wire");
    document.add_shape(kit_facet_cube(), "Facets");
    EXPECT_TRUE(sdk_source_faults(document).empty());
}

TEST(SourceFaults, AFaceWithTwoOuterBoundariesIsNamedWithItsPlace)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Good");
    document.add_shape(face_with_two_outer_boundaries(), "Bad");
    auto const findings = sdk_source_faults(document);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings.front().weight, sdkWeight::note);
    EXPECT_EQ(findings.front().kind, "source-invalid");
    EXPECT_EQ(findings.front().part, "Bad");
    EXPECT_EQ(findings.front().source, 1);
    EXPECT_TRUE(findings.front().text.fits());
    EXPECT_EQ(findings.front().text.formatted(), "1 of 1 shells and single faces of the source are not "
                                                 "valid; the first is in \"Bad\": the boundaries of a face "
                                                 "do not lie within each other as they should at " +
                                                     findings.front().place);
    EXPECT_NE(findings.front().place.find(", 7)"), std::string::npos);
}

TEST(SourceFaults, ASolidThatIsNotClosedIsCountedOnceHoweverOftenItIsPlaced)
{
    TopoDS_Solid solid;
    BRep_Builder builder;
    builder.MakeSolid(solid);
    builder.Add(solid, open_shell());
    sdkDocument document;
    for (double const x : {0.0, 50.0}) {
        gp_Trsf shift;
        shift.SetTranslation(gp_Vec(x, 1, 0));
        document.add_shape(solid.Moved(TopLoc_Location(shift)), "");
    }
    sdkDocument::set_name(document.parts().First(), "Cup");
    document.add_shape(kit_cube(10), "Good");
    auto const findings = sdk_source_faults(document);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings.front().text.formatted().find(
                  "1 of 2 solids of the source are not valid; the first is in \"Cup\": a "
                  "boundary is not closed at ("),
              0u)
        << findings.front().text.formatted();
    EXPECT_EQ(findings.front().text.arguments()[3], sdkArgument("term::a boundary is not closed"));
}

TEST(SourceFaults, OpenShellsAreCounted)
{
    sdkDocument document;
    document.add_shape(kit_compound({open_shell(), open_shell(), kit_cube(10)}), "Sheets");
    auto const findings = sdk_source_faults(document);
    ASSERT_EQ(findings.size(), 1u);
    EXPECT_EQ(findings.front().kind, "source-open");
    EXPECT_EQ(findings.front().weight, sdkWeight::note);
    EXPECT_EQ(findings.front().source, 2);
    EXPECT_EQ(findings.front().part, "Sheets");
}

TEST(SourceFaults, CountTheSidesOfTrianglesWithoutANeighbour)
{
    // Three triangles of a tetrahedron, of which the last looks inward.
    Handle(Poly_Triangulation) const triangles = new Poly_Triangulation(4, 3, Standard_False);
    triangles->SetNode(1, gp_Pnt(0, 0, 0));
    triangles->SetNode(2, gp_Pnt(10, 0, 0));
    triangles->SetNode(3, gp_Pnt(0, 10, 0));
    triangles->SetNode(4, gp_Pnt(0, 0, 10));
    triangles->SetTriangle(1, {1, 3, 2});
    triangles->SetTriangle(2, {1, 2, 4});
    triangles->SetTriangle(3, {2, 4, 3});
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, triangles);
    sdkDocument document;
    document.add_shape(kit_facet_cube(), "Whole");
    document.add_shape(face, "Torn");
    auto const findings = sdk_source_faults(document);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].weight, sdkWeight::note);
    EXPECT_EQ(findings[0].kind, "source-open");
    EXPECT_EQ(findings[0].part, "Torn");
    EXPECT_EQ(findings[0].source, 7) << "three of the hole, and two each along the two sides of the last";
    EXPECT_EQ(
        findings[0].text.formatted(),
        "1 of 2 meshes of the source are not watertight, or have triangles that are inside out: 7 sides of "
        "triangles have no neighbour; the first mesh is \"Torn\"");
}
