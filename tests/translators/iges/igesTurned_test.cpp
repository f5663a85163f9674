#include "igesBareFile.h"
#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkVisibility.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepGProp_Face.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_BezierCurve.hxx>
#include <TColgp_Array1OfPnt.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shell.hxx>
#include <gp_Pln.hxx>

#include <string>
#include <vector>

class IgesTurned : public igesFormatTest {
protected:
    // What another reader finds in the file that is written.
    TopoDS_Shape trip(TopoDS_Shape const & shape, char const * solids)
    {
        EXPECT_TRUE(write(shape, path("turned.igs"), {{"igesWriteSolids", solids}}));
        EXPECT_EQ(said().failed(), 0);
        return iges_bare_read(path("turned.igs"));
    }
};

namespace {

TopoDS_Face first_face(TopoDS_Shape const & shape)
{
    return TopoDS::Face(TopExp_Explorer(shape, TopAbs_FACE).Current());
}

std::vector<TopoDS_Face> faces_of_all_kinds()
{
    gp_Ax2 const axes(gp_Pnt(100, 50, 30), gp_Dir(1, 2, 3));
    TColgp_Array1OfPnt poles(1, 4);
    poles(1) = gp_Pnt(110, 0, 0);
    poles(2) = gp_Pnt(111, 5, 0);
    poles(3) = gp_Pnt(112, 0, 8);
    poles(4) = gp_Pnt(110, 10, 12);
    TopoDS_Edge const edge = BRepBuilderAPI_MakeEdge(new Geom_BezierCurve(poles));
    auto const swept = BRepPrimAPI_MakePrism(edge, gp_Vec(30, 0, 0)).Shape();
    return {BRepBuilderAPI_MakeFace(gp_Pln(gp_Ax3(axes)), 0, 10, 0, 5).Face(),
            first_face(BRepPrimAPI_MakeCylinder(axes, 5, 20, 2.0).Shape()),
            first_face(BRepPrimAPI_MakeCylinder(axes, 5, 20).Shape()),
            first_face(BRepPrimAPI_MakeCone(axes, 5, 2, 20, 2.0).Shape()),
            first_face(BRepPrimAPI_MakeSphere(axes, 5, -1, 1, 2.0).Shape()),
            first_face(BRepPrimAPI_MakeTorus(axes, 15, 3, -1, 1, 2.0).Shape()),
            first_face(swept),
            first_face(BRepPrimAPI_MakeRevol(edge, gp::OZ(), 1.0).Shape()),
            first_face(BRepBuilderAPI_NurbsConvert(swept).Shape())};
}

gp_Vec normal(TopoDS_Shape const & shape)
{
    auto const face = first_face(shape);
    double u1 = 0;
    double u2 = 0;
    double v1 = 0;
    double v2 = 0;
    BRepTools::UVBounds(face, u1, u2, v1, v2);
    gp_Pnt point;
    gp_Vec vector;
    BRepGProp_Face(face).Normal(0.5 * (u1 + u2), 0.5 * (v1 + v2), point, vector);
    return vector.Normalized();
}

TopoDS_Shell shell_of(std::vector<TopoDS_Shape> const & faces)
{
    TopoDS_Shell shell;
    BRep_Builder builder;
    builder.MakeShell(shell);
    for (auto const & face : faces) {
        builder.Add(shell, face);
    }
    return shell;
}

constexpr char const * both_forms[] = {"true", "false"};

} // namespace

TEST_F(IgesTurned, FacesAndShellsLookToTheOtherSideInFilesOfTheToolkitsOwnWriter)
{
    auto const face = faces_of_all_kinds().front();
    for (auto const & turned : {face.Reversed(), shell_of({face}).Reversed()}) {
        ASSERT_TRUE(iges_bare_write(turned, path("bare.igs")));
        EXPECT_LT(normal(iges_bare_read(path("bare.igs"))) * normal(turned), 0)
            << "the toolkit writes them well now: sdk_turn_faces_in_shells is needed no more";
    }
}

TEST_F(IgesTurned, FacesLookToTheSameSideInBothForms)
{
    for (auto const & face : faces_of_all_kinds()) {
        for (auto const * const solids : both_forms) {
            for (auto const & shape :
                 {face.Oriented(TopAbs_FORWARD), face.Oriented(TopAbs_REVERSED),
                  shell_of({face}).Oriented(TopAbs_FORWARD), shell_of({face}).Oriented(TopAbs_REVERSED)}) {
                SCOPED_TRACE(std::string(BRep_Tool::Surface(face)->DynamicType()->Name()) + " " + solids);
                auto const after = trip(shape, solids);
                EXPECT_EQ(sdk_measure(after).faces, 1);
                EXPECT_NEAR(sdk_measure(after).area, sdk_measure(shape).area, 1e-3);
                EXPECT_GT(normal(after) * normal(shape), 0.99);
            }
        }
    }
}

TEST_F(IgesTurned, MembersOfTurnedGroupsLookToTheSameSide)
{
    auto const face = faces_of_all_kinds()[1].Oriented(TopAbs_FORWARD);
    for (auto const & shape :
         {kit_compound({face.Reversed()}), kit_compound({face}).Reversed(),
          kit_compound({face.Reversed()}).Reversed(), kit_compound({shell_of({face.Reversed()})}).Reversed(),
          kit_compound({kit_compound({shell_of({face})}).Reversed()})}) {
        for (auto const * const solids : both_forms) {
            EXPECT_GT(normal(trip(shape, solids)) * normal(shape), 0.99);
        }
    }
}

// Five sides of a box.
TEST_F(IgesTurned, OpenShellsStayWholeAndLookToTheSameSide)
{
    std::vector<TopoDS_Shape> faces;
    auto const box = BRepPrimAPI_MakeBox(gp_Pnt(100, 0, 0), 10, 20, 30).Shape();
    for (TopExp_Explorer face(box, TopAbs_FACE); face.More() && faces.size() < 5; face.Next()) {
        faces.push_back(face.Current());
    }
    sdkDocument document;
    ASSERT_TRUE(write(shell_of(faces).Reversed(), path("shell.igs")));
    ASSERT_TRUE(read(path("shell.igs"), document, {{"igesReadSolids", "false"}}));
    auto const measures = sdk_measure(document);
    EXPECT_EQ(measures.shells, 1);
    EXPECT_EQ(measures.faces, 5);
    auto const after = XCAFDoc_ShapeTool::GetShape(document.parts().First());
    EXPECT_GT(normal(after) * normal(faces.front().Reversed()), 0.99);
}

TEST_F(IgesTurned, FacesKeepTheirNamesColoursAndVisibility)
{
    auto const kinds = faces_of_all_kinds();
    for (auto const * const solids : both_forms) {
        SCOPED_TRACE(solids);
        sdkDocument document;
        auto const seen = document.add_shape(kinds[0].Reversed(), "Seen");
        document.colours()->SetColor(seen, kit_red(), XCAFDoc_ColorSurf);
        sdk_hide(document, document.add_shape(kinds[6].Reversed(), "Hidden"));
        auto const group =
            document.add_shape(kit_compound({kinds[1].Reversed(), kinds[3].Reversed()}), "Group");
        document.colours()->SetColor(document.shapes()->AddSubShape(group, kinds[3].Reversed()), kit_blue(),
                                     XCAFDoc_ColorSurf);
        ASSERT_TRUE(write(document, path("attributes.igs"), {{"igesWriteSolids", solids}}));
        sdkDocument again;
        ASSERT_TRUE(read(path("attributes.igs"), again, {{"igesReadSolids", "false"}}));
        EXPECT_EQ(kit_part_names(again), (std::vector<std::string>{"Group", "Hidden", "Seen"}));
        for (auto const & part : again.parts()) {
            auto const name = sdkDocument::name(part);
            EXPECT_EQ(sdk_hidden(again, part), name == "Hidden");
            if (name != "Hidden") {
                EXPECT_TRUE(kit_colour(again, part).IsEqual(name == "Seen" ? kit_red() : kit_blue())) << name;
            }
        }
    }
}
