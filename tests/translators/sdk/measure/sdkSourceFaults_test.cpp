#include "sdk/measure/sdkSourceFaults.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRep_Builder.hxx>
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
