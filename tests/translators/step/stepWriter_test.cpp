#include "stepFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkLengthUnit.h"

#include <BRepPrimAPI_MakeCone.hxx>

class StepWriter : public stepFormatTest {};

namespace {

void expect_cube(sdkDocument const & document, double side)
{
    auto const measures = sdk_measure(document);
    EXPECT_NEAR(measures.volume, side * side * side, 1e-9 * side * side * side);
    EXPECT_NEAR(measures.area, 6 * side * side, 1e-9 * side * side);
    EXPECT_EQ(measures.solids, 1);
    EXPECT_EQ(measures.faces, 6);
    EXPECT_NEAR(measures.box.CornerMax().X() - measures.box.CornerMin().X(), side, 1e-5 * side);
}

} // namespace

TEST_F(StepWriter, KeepsTheSizeOfCubesOfAMillimetreAnInchAndAMetre)
{
    for (double const side : {10.0, 25.4, 1000.0}) {
        ASSERT_TRUE(write(kit_cube(side), path("cube.stp")));
        EXPECT_EQ(said().processed(), 6);
        EXPECT_EQ(said().failed(), 0);
        sdkDocument document;
        ASSERT_TRUE(read(path("cube.stp"), document));
        expect_cube(document, side);
    }
}

TEST_F(StepWriter, WritesLengthsInEachUnitAndReadsThemBack)
{
    for (auto const & unit : sdk_length_units) {
        ASSERT_TRUE(write(kit_cube(10), path("cube.stp"), {{"vmrOptOutputUnits", std::string(unit.name)}}));
        EXPECT_TRUE(said().says("Length unit of the output is " + std::string(unit.name)));
        sdkDocument document;
        ASSERT_TRUE(read(path("cube.stp"), document)) << unit.name;
        EXPECT_TRUE(said().says("Length unit of the file is " + std::string(unit.name))) << unit.name;
        auto const measures = sdk_measure(document);
        EXPECT_NEAR(measures.volume, 1000, 1e-3) << unit.name;
    }
}

TEST_F(StepWriter, WritesTheNumbersOfTheUnit)
{
    ASSERT_TRUE(write(kit_cube(25.4), path("cube.stp"), {{"vmrOptOutputUnits", "in"}}));
    auto const text = kit_read_file(path("cube.stp"));
    EXPECT_NE(text.find("CARTESIAN_POINT('',(1.,1.,1.))"), std::string::npos);
    EXPECT_NE(text.find("'INCH'"), std::string::npos);
}

TEST_F(StepWriter, KeepsAssemblyNamesColoursAndLayers)
{
    sdkDocument original;
    kit_add_assembly(original);
    ASSERT_TRUE(write(original, path("assembly.stp")));
    sdkDocument document;
    ASSERT_TRUE(read(path("assembly.stp"), document));

    auto const measures = sdk_measure(document);
    EXPECT_NEAR(measures.volume, 2000, 1e-6);
    EXPECT_EQ(measures.solids, 3);
    ASSERT_EQ(document.free_shapes().Length(), 1);
    EXPECT_EQ(sdkDocument::name(document.free_shapes().First()), kit_assembly_name);
    EXPECT_EQ(kit_part_names(document), (std::vector<std::string>{kit_blue_name, kit_red_name}));
    for (auto const & part : document.parts()) {
        bool const red = sdkDocument::name(part) == kit_red_name;
        EXPECT_TRUE(kit_colour(document, part).IsEqual(red ? kit_red() : kit_blue()));
        EXPECT_EQ(document.layers()->IsSet(part, TCollection_ExtendedString(kit_layer_name)), red);
    }
}

TEST_F(StepWriter, WritesNamesAsTheStandardEncodesThem)
{
    std::string const name =
        "Ящик '箱' \\ 😀 очень длинное имя детали которое не помещается в одну строку файла";
    ASSERT_TRUE(write(kit_cube(10), path("name.stp"), {}, name));
    auto const text = kit_read_file(path("name.stp"));
    EXPECT_NE(text.find("\\X2\\042F04490438043A\\X0\\ "), std::string::npos);
    EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; }));
    sdkDocument document;
    ASSERT_TRUE(read(path("name.stp"), document));
    EXPECT_EQ(kit_part_names(document), std::vector<std::string>{name});
}

TEST_F(StepWriter, SaysWhyADiskThatIsFullHoldsNoFile)
{
    auto const result = write(kit_cube(10), "/dev/full");
    EXPECT_EQ(result.status(), sdkStatus::write_error);
    EXPECT_NE(result.text().formatted().find("No space left on device"), std::string::npos);
}

TEST_F(StepWriter, SaysWhyAFolderThatIsMissingHoldsNoFile)
{
    auto const result = write(kit_cube(10), path("missing/cube.stp"));
    EXPECT_EQ(result.status(), sdkStatus::write_error);
    EXPECT_NE(result.text().formatted().find("No such file or directory"), std::string::npos);
}

TEST_F(StepWriter, CompletesWithoutAFileWhenThereIsNothingToWrite)
{
    sdkDocument empty;
    EXPECT_TRUE(write(empty, path("empty.stp")));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_TRUE(said().says("There is nothing to write"));
    EXPECT_FALSE(std::filesystem::exists(path("empty.stp")));
}

TEST_F(StepWriter, KeepsACavity)
{
    ASSERT_TRUE(write(kit_hollow_cube(), path("hollow.stp")));
    sdkDocument document;
    ASSERT_TRUE(read(path("hollow.stp"), document));
    EXPECT_NEAR(sdk_measure(document).volume, 7000, 1e-6);
}

TEST_F(StepWriter, KeepsAWire)
{
    ASSERT_TRUE(write(kit_wire(), path("wire.stp")));
    EXPECT_EQ(said().processed(), 2);
    sdkDocument document;
    ASSERT_TRUE(read(path("wire.stp"), document));
    EXPECT_EQ(document.count_entities().curves, 2);
    EXPECT_EQ(document.count_entities().faces, 0);
}

TEST_F(StepWriter, SaysWhatItsFileHoldsAndThatItIsWhole)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.stp")));
    EXPECT_TRUE(promise().made);
    EXPECT_TRUE(promise().checked);
    EXPECT_TRUE(promise().holds.structure && promise().holds.names && promise().holds.solids);
    ASSERT_TRUE(write(
        kit_cube(10), path("cube.stp"),
        {{"stepWriteStructure", "flat"}, {"stepWriteColours", "false"}, {"stepWriteCurves", "polyline"}}));
    EXPECT_FALSE(promise().holds.structure || promise().holds.colours || promise().exact_curves);
    EXPECT_FALSE(write(kit_cube(10), "/dev/full"));
    EXPECT_FALSE(promise().checked);
}

TEST_F(StepWriter, KeepsConesThatNarrowAlongTheirAxis)
{
    auto const cone = BRepPrimAPI_MakeCone(10, 5, 20).Solid();
    auto const before = sdk_measure(cone);
    ASSERT_TRUE(write(cone, path("cone.stp")));
    EXPECT_TRUE(said().errors.empty());
    sdkDocument document;
    ASSERT_TRUE(read(path("cone.stp"), document));
    auto const after = sdk_measure(document);
    EXPECT_EQ(after.solids, 1);
    EXPECT_EQ(after.faces, 3);
    EXPECT_NEAR(after.volume, before.volume, 1e-6);
    EXPECT_NEAR(after.area, before.area, 1e-6);
}

TEST_F(StepWriter, KeepsMembersThatAreMirroredOrScaled)
{
    expect_moved_members_kept("fault.stp");
}
