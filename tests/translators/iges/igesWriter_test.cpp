#include "igesFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkLengthUnit.h"
#include "sdk/sdkStated.h"

#include <Quantity_ColorRGBA.hxx>

class IgesWriter : public igesFormatTest {
protected:
    // Writes, reads back and compares volume, area, box and solids, for solids and for surfaces.
    void expect_kept(TopoDS_Shape const & shape)
    {
        auto const before = sdk_measure(shape);
        for (char const * const solids : {"true", "false"}) {
            ASSERT_TRUE(write(shape, path("shape.igs"), {{"igesWriteSolids", solids}}));
            sdkDocument document;
            ASSERT_TRUE(read(path("shape.igs"), document));
            auto const after = sdk_measure(document);
            EXPECT_NEAR(after.volume, before.volume, 1e-6 * before.volume) << solids;
            EXPECT_NEAR(after.area, before.area, 1e-6 * before.area) << solids;
            EXPECT_EQ(after.solids, before.solids) << solids;
            EXPECT_EQ(after.faces, before.faces) << solids;
            EXPECT_LT(after.box.CornerMin().Distance(before.box.CornerMin()), 0.1);
            EXPECT_LT(after.box.CornerMax().Distance(before.box.CornerMax()), 0.1);
        }
    }
};

TEST_F(IgesWriter, KeepsCubesOfAMillimetreAnInchAndAMetre)
{
    for (double const side : {10.0, 25.4, 1000.0}) {
        expect_kept(kit_cube(side));
    }
}

TEST_F(IgesWriter, KeepsACavity)
{
    expect_kept(kit_hollow_cube());
}

TEST_F(IgesWriter, WritesLengthsInEachUnitAndReadsThemBack)
{
    for (auto const & unit : sdk_length_units) {
        ASSERT_TRUE(write(kit_cube(10), path("cube.igs"), {{"vmrOptOutputUnits", std::string(unit.name)}}));
        EXPECT_TRUE(said().says("Length unit of the output is " + std::string(unit.name)));
        sdkDocument document;
        ASSERT_TRUE(read(path("cube.igs"), document)) << unit.name;
        EXPECT_TRUE(said().says("Length unit of the file is " + std::string(unit.name)));
        EXPECT_NEAR(sdk_measure(document).volume, 1000, 1e-3) << unit.name;
    }
}

TEST_F(IgesWriter, WritesTheNumbersOfTheUnit)
{
    ASSERT_TRUE(write(kit_cube(25.4), path("cube.igs"), {{"vmrOptOutputUnits", "in"}}));
    auto const text = kit_read_file(path("cube.igs"));
    EXPECT_NE(text.find(",1,4HINCH,"), std::string::npos);
    EXPECT_EQ(text.find("25.4"), std::string::npos);
}

TEST_F(IgesWriter, KeepsNamesColoursAndLevelsOfThePartsOfAnAssembly)
{
    sdkDocument original;
    kit_add_assembly(original);
    ASSERT_TRUE(write(original, path("assembly.igs")));
    EXPECT_TRUE(said().says("1 assemblies with 3 instances became 3 separate shapes"));
    EXPECT_TRUE(said().says("1 layers became level numbers"));
    sdkDocument document;
    ASSERT_TRUE(read(path("assembly.igs"), document));
    EXPECT_NEAR(sdk_measure(document).volume, 2000, 1e-6);
    EXPECT_EQ(sdk_measure(document).solids, 3);
    EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 50, 0.1);
    EXPECT_EQ(kit_part_names(document), (std::vector<std::string>{"Blue box", "Blue box", "Geh_use"}));
    for (auto const & part : document.parts()) {
        bool const red = sdkDocument::name(part) == "Geh_use";
        EXPECT_TRUE(kit_colour(document, part).IsEqual(red ? kit_red() : kit_blue()));
    }
    TDF_LabelSequence levels;
    document.layers()->GetLayerLabels(levels);
    EXPECT_GE(levels.Length(), 1);
}

TEST_F(IgesWriter, KeepsAWire)
{
    ASSERT_TRUE(write(kit_wire(), path("wire.igs")));
    EXPECT_EQ(said().processed(), 2);
    sdkDocument document;
    ASSERT_TRUE(read(path("wire.igs"), document));
    EXPECT_EQ(document.count_entities().curves, 2);
}

TEST_F(IgesWriter, WritesVersion53AndTheNameOfTheFile)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.igs")));
    auto const text = kit_read_file(path("cube.igs"));
    EXPECT_NE(text.find("8Hcube.igs"), std::string::npos);
    EXPECT_NE(text.find(",,,11,0,"), std::string::npos) << "no author, no organisation, version 5.3";
}

TEST_F(IgesWriter, SaysWhyADiskThatIsFullHoldsNoFile)
{
    auto const result = write(kit_cube(10), "/dev/full");
    EXPECT_EQ(result.status(), sdkStatus::write_error);
    EXPECT_NE(result.text().formatted().find("No space left on device"), std::string::npos);
}

TEST_F(IgesWriter, CompletesWithoutAFileWhenThereIsNothingToWrite)
{
    sdkDocument empty;
    EXPECT_TRUE(write(empty, path("empty.igs")));
    EXPECT_EQ(said().processed(), 0);
    EXPECT_FALSE(std::filesystem::exists(path("empty.igs")));
}

TEST_F(IgesWriter, SaysWhatItsFileHoldsAndThatItIsWhole)
{
    ASSERT_TRUE(write(kit_cube(10), path("cube.igs")));
    EXPECT_TRUE(promise().made);
    EXPECT_TRUE(promise().checked);
    EXPECT_TRUE(promise().ascii_names);
    EXPECT_TRUE(promise().holds.solids && promise().holds.names && promise().holds.colours);
    EXPECT_FALSE(promise().holds.structure);
    EXPECT_EQ(promise().read_back.at("igesReadSolids"), "false");
    ASSERT_TRUE(
        write(kit_cube(10), path("cube.igs"),
              {{"igesWriteSolids", "false"}, {"igesWriteNames", "false"}, {"igesWriteCurves", "polyline"}}));
    EXPECT_FALSE(promise().holds.solids || promise().holds.names || promise().exact_curves);
    EXPECT_TRUE(promise().read_back.empty());
    EXPECT_FALSE(write(kit_cube(10), "/dev/full"));
    EXPECT_FALSE(promise().checked);
}

TEST_F(IgesWriter, KeepsMembersThatAreMirroredOrScaled)
{
    expect_moved_members_kept("fault.igs");
}

TEST_F(IgesWriter, NamesTheValidationPropertiesThatAreLost)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Part");
    ASSERT_TRUE(write(document, path("none.igs")));
    EXPECT_FALSE(said().says("validation"));
    sdk_add_stated(document, 1);
    ASSERT_TRUE(write(document, path("stated.igs")));
    EXPECT_TRUE(said().says("IGES files hold no validation properties"));
}

TEST_F(IgesWriter, SaysThatShapesBecomeOpaque)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_cube(10), "Glass");
    document.colours()->SetColor(part, Quantity_ColorRGBA(kit_red(), 0.5F), XCAFDoc_ColorSurf);
    ASSERT_TRUE(write(document, path("glass.igs")));
    EXPECT_TRUE(said().says("IGES files hold no transparency: 1 shapes become opaque"));
    ASSERT_TRUE(write(document, path("grey.igs"), {{"igesWriteColours", "false"}}));
    EXPECT_FALSE(said().says("transparency"));
}

TEST_F(IgesWriter, GivesInstancesTheColourThatTheyWerePainted)
{
    // One of them is the second of two places of one part.
    for (int const painted : {1, 3}) {
        sdkDocument original;
        kit_add_assembly(original);
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(original.free_shapes().First(), components);
        original.colours()->SetColor(components(painted), Quantity_NOC_GREEN, XCAFDoc_ColorSurf);
        ASSERT_TRUE(write(original, path("painted.igs")));
        EXPECT_TRUE(account().findings().empty());
        sdkDocument document;
        ASSERT_TRUE(read(path("painted.igs"), document));
        int green = 0;
        for (auto const & part : document.parts()) {
            green += kit_colour(document, part).IsEqual(Quantity_NOC_GREEN) ? 1 : 0;
        }
        EXPECT_EQ(green, 1);
    }
}
