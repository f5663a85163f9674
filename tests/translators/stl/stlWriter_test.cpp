#include "stlFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkLengthUnit.h"
#include "sdk/sdkVisibility.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <TopoDS_Face.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numbers>

class StlWriter : public stlFormatTest {
protected:
    // What comes back when a shape is written and read, in the unit of the file.
    sdkMeasures trip(TopoDS_Shape const & shape, Values const & values)
    {
        EXPECT_TRUE(write(shape, path("trip.stl"), values));
        auto const unit = values.find("vmrOptOutputUnits");
        sdkDocument document;
        EXPECT_TRUE(read(path("trip.stl"), document,
                         {{"stlReadUnit", unit == values.end() ? std::string("mm") : unit->second}}));
        return sdk_measure(document);
    }
};

namespace {

// The largest distance of a middle of a triangle from the sphere of that radius around the origin.
double distance_from_sphere(sdkDocument const & document, double radius)
{
    auto const shape = XCAFDoc_ShapeTool::GetShape(document.parts().First());
    TopLoc_Location location;
    auto const mesh =
        BRep_Tool::Triangulation(TopoDS::Face(TopExp_Explorer(shape, TopAbs_FACE).Current()), location);
    double farthest = 0;
    for (int number = 1; number <= mesh->NbTriangles(); ++number) {
        int a = 0;
        int b = 0;
        int c = 0;
        mesh->Triangle(number).Get(a, b, c);
        auto const middle = (mesh->Node(a).XYZ() + mesh->Node(b).XYZ() + mesh->Node(c).XYZ()) / 3;
        farthest = std::max(farthest, std::abs(radius - middle.Modulus()));
    }
    return farthest;
}

} // namespace

TEST_F(StlWriter, KeepsTheSizeOfCubesOfAMillimetreAnInchAndAMetre)
{
    for (auto const * form : {"text", "binary"}) {
        for (double const side : {10.0, 25.4, 1000.0}) {
            auto const measures = trip(kit_cube(side), {{"stlWriteForm", form}});
            double const precision = side == 25.4 && form == std::string("binary") ? 1e-6 : 1e-12;
            EXPECT_NEAR(measures.volume / (side * side * side), 1, precision);
            EXPECT_NEAR(measures.area / (6 * side * side), 1, precision);
            EXPECT_EQ(measures.triangles, 12);
        }
    }
}

TEST_F(StlWriter, WritesLengthsInEachUnit)
{
    for (auto const & unit : sdk_length_units) {
        auto const measures = trip(kit_cube(10), {{"vmrOptOutputUnits", std::string(unit.name)}});
        EXPECT_NEAR(measures.volume, 1000, 1e-3) << unit.name;
        EXPECT_TRUE(said().says("taking lengths to be in " + std::string(unit.name)));
    }
    ASSERT_TRUE(
        write(kit_cube(25.4), path("inch.stl"), {{"vmrOptOutputUnits", "in"}, {"stlWriteForm", "text"}}));
    EXPECT_TRUE(kit_contains(kit_read_file(path("inch.stl")), "vertex 1 1 1\n"));
}

TEST_F(StlWriter, FollowsASphereWithinTheDeflection)
{
    std::vector<std::int64_t> triangles;
    for (auto const * linear : {"1", "0.1", "0.01"}) {
        ASSERT_TRUE(write(BRepPrimAPI_MakeSphere(10).Shape(), path("ball.stl"),
                          {{"vmrTolTriangulate3d", linear}, {"stlAngularDeflection", "90"}}));
        sdkDocument document;
        ASSERT_TRUE(read(path("ball.stl"), document));
        EXPECT_LE(distance_from_sphere(document, 10), std::stod(linear) + 1e-6);
        triangles.push_back(sdk_measure(document).triangles);
    }
    EXPECT_LT(triangles[0], triangles[1]);
    EXPECT_LT(triangles[1], triangles[2]);
}

TEST_F(StlWriter, FollowsTheAngularDeflection)
{
    auto const coarse = trip(BRepPrimAPI_MakeSphere(10).Shape(),
                             {{"stlAngularDeflection", "45"}, {"vmrTolTriangulate3d", "5"}});
    auto const fine = trip(BRepPrimAPI_MakeSphere(10).Shape(),
                           {{"stlAngularDeflection", "5"}, {"vmrTolTriangulate3d", "5"}});
    EXPECT_GT(fine.triangles, 10 * coarse.triangles);
    EXPECT_NEAR(fine.volume, 4000 * std::numbers::pi / 3, 20);
}

TEST_F(StlWriter, WritesABinaryFileThatCannotBeTakenForText)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.stl")));
    auto const content = kit_read_file(path("cube.stl"));
    EXPECT_EQ(content.size(), 84U + 12 * 50);
    EXPECT_FALSE(content.starts_with("solid"));
    EXPECT_TRUE(content.starts_with("Binary STL, unit mm: cube"));
}

TEST_F(StlWriter, ComputesNormalsOfUnitLengthThatLookOutward)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.stl")));
    auto const content = kit_read_file(path("cube.stl"));
    for (std::size_t at = 84; at < content.size(); at += 50) {
        std::array<float, 12> values{};
        std::memcpy(values.data(), content.data() + at, sizeof values);
        gp_XYZ const normal(values[0], values[1], values[2]);
        gp_XYZ const corner(values[3], values[4], values[5]);
        EXPECT_NEAR(normal.Modulus(), 1, 1e-7);
        EXPECT_GT(normal.Dot(corner - gp_XYZ(5, 5, 5)), 0);
    }
}

TEST_F(StlWriter, WritesAsManyDigitsAsAsked)
{
    ASSERT_TRUE(
        write(kit_cube(10.0 / 3), path("cube.stl"), {{"stlWriteForm", "text"}, {"stlWriteDigits", "4"}}));
    EXPECT_TRUE(kit_contains(kit_read_file(path("cube.stl")), "vertex 3.333 3.333 3.333\n"));
    ASSERT_TRUE(
        write(kit_cube(10.0 / 3), path("cube.stl"), {{"stlWriteForm", "text"}, {"stlWriteDigits", "17"}}));
    EXPECT_TRUE(kit_contains(kit_read_file(path("cube.stl")), "vertex 3.3333333333333335 "));
}

TEST_F(StlWriter, WritesEachInstanceOfAnAssemblyAsASolidWithItsName)
{
    sdkDocument original;
    kit_add_assembly(original);
    ASSERT_TRUE(write(original, path("assembly.stl"), {{"stlWriteForm", "text"}}));
    EXPECT_EQ(said().processed(), 12);
    EXPECT_TRUE(said().says("1 assemblies with 3 instances are flattened"));
    EXPECT_TRUE(said().says("the colours of 2 shapes are lost"));
    EXPECT_TRUE(said().says("the layers of 1 shapes are lost"));
    EXPECT_FALSE(said().says("names are lost"));
    sdkDocument document;
    ASSERT_TRUE(read(path("assembly.stl"), document));
    EXPECT_EQ(kit_part_names(document),
              (std::vector<std::string>{kit_blue_name, kit_blue_name, kit_red_name}));
    auto const measures = sdk_measure(document);
    EXPECT_NEAR(measures.volume, 2000, 1e-9);
    EXPECT_NEAR(measures.box.CornerMax().X(), 50, 1e-6);
}

TEST_F(StlWriter, WritesOneSolidWhenAskedOrWhenTheFormHoldsOnlyOne)
{
    for (Values const & values : {Values{{"stlWriteForm", "text"}, {"stlWriteParts", "one"}}, Values{}}) {
        sdkDocument original;
        kit_add_assembly(original);
        ASSERT_TRUE(write(original, path("assembly.stl"), values));
        EXPECT_TRUE(said().says("3 parts are written as one solid"));
        EXPECT_TRUE(said().says("3 names are lost"));
        sdkDocument document;
        ASSERT_TRUE(read(path("assembly.stl"), document));
        EXPECT_EQ(kit_part_names(document), std::vector<std::string>{"assembly"});
        EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-9);
    }
}

TEST_F(StlWriter, WritesMeshesAsTheyAre)
{
    auto const measures = trip(kit_facet_cube().Reversed(), {});
    EXPECT_EQ(measures.triangles, 12);
    EXPECT_NEAR(measures.volume, -1000, 1e-9);
}

TEST_F(StlWriter, DropsTrianglesThatHaveNoAreaInTheFile)
{
    Handle(Poly_Triangulation) const mesh = new Poly_Triangulation(4, 2, Standard_False);
    mesh->SetNode(1, {0, 0, 0});
    mesh->SetNode(2, {1, 0, 0});
    mesh->SetNode(3, {0, 1, 0});
    mesh->SetNode(4, {1e-60, 0, 0});
    mesh->SetTriangle(1, {1, 2, 3});
    mesh->SetTriangle(2, {1, 4, 3});
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    ASSERT_TRUE(write(face, path("thin.stl")));
    EXPECT_TRUE(said().says("1 triangles without area are left out"));
    EXPECT_EQ(kit_read_file(path("thin.stl")).size(), 134U);
}

TEST_F(StlWriter, CountsCurvesAsLostUnlessTheyAreTurnedOff)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    document.add_shape(kit_wire(), "Sketch");
    ASSERT_TRUE(write(document, path("mixed.stl")));
    EXPECT_TRUE(said().says("STL files hold no curves: 2 curves are left out"));
    EXPECT_EQ(said().processed(), 6);
    EXPECT_EQ(said().failed(), 2);
    sdkDocument other;
    other.add_shape(kit_cube(10), "Cube");
    other.add_shape(kit_wire(), "Sketch");
    ASSERT_TRUE(write(other, path("mixed.stl"), {{"vmrOptProcessWireframe", "false"}}));
    EXPECT_TRUE(said().says("2 curves and 0 points are left out because wireframe is not to be processed"));
    EXPECT_EQ(said().failed(), 0);
}

TEST_F(StlWriter, CompletesWithoutAFileWhenThereIsNothingToWrite)
{
    EXPECT_TRUE(write(kit_wire(), path("none.stl")));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_TRUE(said().says("There is nothing to write"));
    EXPECT_TRUE(write(kit_cube(10), path("none.stl"), {{"vmrOptProcessSurfaces", "false"}}));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_TRUE(said().says("the options leave out all there is"));
    EXPECT_FALSE(std::filesystem::exists(path("none.stl")));
}

TEST_F(StlWriter, RefusesCoordinatesThatTheFormCannotHold)
{
    auto const result = write(kit_cube(1e36), path("vast.stl"), {{"vmrOptOutputUnits", "um"}});
    EXPECT_EQ(result.status(), sdkStatus::write_error);
    EXPECT_TRUE(kit_contains(result.text().formatted(), "too large in um"));
}

TEST_F(StlWriter, SaysWhyAFileCouldNotBeWritten)
{
    for (auto const * form : {"text", "binary"}) {
        auto const full = write(kit_cube(10), "/dev/full", {{"stlWriteForm", form}});
        EXPECT_EQ(full.status(), sdkStatus::write_error);
        EXPECT_TRUE(kit_contains(full.text().formatted(), "No space left on device"));
        auto const absent = write(kit_cube(10), path("no/such/folder.stl"), {{"stlWriteForm", form}});
        EXPECT_EQ(absent.status(), sdkStatus::write_error);
        EXPECT_TRUE(kit_contains(absent.text().formatted(), "No such file or directory"));
    }
}

TEST_F(StlWriter, SaysWhatItsFileHoldsAndThatItIsWhole)
{
    for (auto const * form : {"text", "binary"}) {
        ASSERT_TRUE(
            write(kit_cube(10), path("cube.stl"),
                  {{"stlWriteForm", form}, {"vmrOptOutputUnits", "cm"}, {"vmrTolTriangulate3d", "0.25"}}));
        EXPECT_TRUE(promise().made);
        EXPECT_TRUE(promise().checked) << form;
        EXPECT_EQ(promise().deflection, 0.25);
        EXPECT_EQ(promise().triangles, 12) << form;
        EXPECT_EQ(promise().read_back.at("stlReadUnit"), "cm");
        EXPECT_EQ(promise().holds.names, std::string(form) == "text");
        EXPECT_FALSE(promise().holds.surfaces || promise().holds.curves || promise().holds.structure);
        EXPECT_FALSE(write(kit_cube(10), "/dev/full", {{"stlWriteForm", form}}));
        EXPECT_FALSE(promise().checked);
    }
}

TEST_F(StlWriter, PromisesNoNumberOfTrianglesThatItsDigitsMayFlatten)
{
    auto const needle = BRepPrimAPI_MakeBox(100., 0.02, 100.).Shape();
    auto const write_digits = [&](char const * digits) {
        ASSERT_TRUE(
            write(needle, path("needle.stl"), {{"stlWriteForm", "text"}, {"stlWriteDigits", digits}}));
    };
    write_digits("9");
    EXPECT_EQ(promise().triangles, 12);
    write_digits("3");
    EXPECT_EQ(promise().triangles, -1);
    ASSERT_TRUE(write(needle, path("needle.stl"), {{"stlWriteDigits", "3"}}));
    EXPECT_EQ(promise().triangles, 12) << "a binary file has no digits";
}

TEST_F(StlWriter, LeavesHiddenShapesOut)
{
    for (auto const * form : {"text", "binary"}) {
        sdkDocument document;
        sdk_hide(document, document.add_shape(kit_cube(10), "Hidden"));
        auto const pair = kit_compound({kit_cube(20), kit_cube(5)});
        auto const part = document.add_shape(pair, "Pair");
        TopoDS_Iterator body(pair);
        body.Next();
        sdk_hide(document, document.shapes()->AddSubShape(part, body.Value()));
        kit_add_assembly(document);
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(document.free_shapes().Last(), components);
        sdk_hide(document, components.Last());
        ASSERT_TRUE(write(document, path("hidden.stl"), {{"stlWriteForm", form}}));
        EXPECT_FALSE(promise().hidden);
        ASSERT_EQ(account().findings().size(), 1u);
        EXPECT_EQ(account().findings().front().kind, "hidden");
        EXPECT_EQ(account().findings().front().weight, sdkWeight::note);
        EXPECT_EQ(account().findings().front().source, 3);
        sdkDocument again;
        ASSERT_TRUE(read(path("hidden.stl"), again));
        EXPECT_NEAR(sdk_measure(again).volume, 8000 + 1500, 1e-3);
    }
}

TEST_F(StlWriter, SaysThatAFaceHasNoEnd)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    document.add_shape(BRepBuilderAPI_MakeFace(gp_Pln(gp_Pnt(0, 0, 5), gp::DZ())).Face(), "Datum");
    ASSERT_TRUE(write(document, path("endless.stl")));
    ASSERT_EQ(account().findings().size(), 1u);
    EXPECT_EQ(account().findings().front().kind, "without-end");
    EXPECT_EQ(account().findings().front().weight, sdkWeight::loss);
    EXPECT_EQ(account().findings().front().part, "Datum");
    EXPECT_FALSE(said().says("could not be tessellated"));
    EXPECT_EQ(promise().triangles, 12);
}

TEST_F(StlWriter, WritesNothingWhenAllIsHidden)
{
    sdkDocument document;
    sdk_hide(document, document.add_shape(kit_cube(10), "Hidden"));
    EXPECT_TRUE(write(document, path("nothing.stl")));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_TRUE(said().says("all that it could hold is hidden"));
    EXPECT_FALSE(std::filesystem::exists(path("nothing.stl")));
}

TEST_F(StlWriter, KeepsMembersThatAreMirroredOrScaled)
{
    expect_moved_members_kept("fault.stl", {{"vmrTolTriangulate3d", "0.001"}, {"stlAngularDeflection", "2"}},
                              1e-3);
}
