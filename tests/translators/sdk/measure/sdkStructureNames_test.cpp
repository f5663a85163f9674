#include "measureBodies.h"

#include "sdk/measure/sdkModelComparison.h"
#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

namespace {

// An assembly with two places of one cube.
sdkInventory assembly(std::string const & name, std::string const & first, std::string const & second)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_cube(10), "Cube");
    auto const whole = document.shapes()->NewShape();
    sdkDocument::set_name(whole, name);
    double at = 0;
    for (auto const & place : {first, second}) {
        sdkDocument::set_name(document.shapes()->AddComponent(whole, part, shifted(at)), place);
        at += 50;
    }
    document.shapes()->UpdateAssemblies();
    return sdk_take_inventory(document, {});
}

} // namespace

TEST(StructureNames, AreTheSameInWhateverOrder)
{
    EXPECT_TRUE(findings_of(assembly("Frame", "left", "right"), assembly("Frame", "right", "left")).empty());
}

TEST(StructureNames, AreMissedWhereAnAssemblyIsCalledOtherwise)
{
    auto const findings = findings_of(assembly("Frame", "left", "right"), assembly("Other", "left", "right"));
    ASSERT_EQ(kinds(findings), (Kinds{"name"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_EQ(findings[0].part, "Frame");
    EXPECT_EQ(findings[0].source, 1);
    EXPECT_EQ(findings[0].output, 0);
}

TEST(StructureNames, AreMissedWherePlacesAreCalledOtherwise)
{
    auto const source = assembly("Frame", "left", "right");
    auto const findings = findings_of(source, assembly("Frame", "left", "left"));
    ASSERT_EQ(kinds(findings), (Kinds{"name"}));
    EXPECT_EQ(findings[0].part, "right");
    EXPECT_EQ(kinds(findings_of(source, assembly("Frame", "", ""))), (Kinds{"name", "name"}));
    EXPECT_EQ(kinds(findings_of(assembly("Frame", "left", "left"), source)), (Kinds{"name"}));
}

TEST(StructureNames, AreNotThoseOfPlacesOutsideOfAssemblies)
{
    sdkDocument document;
    auto const label = document.add_shape(kit_cube(10).Moved(shifted(5)), "Moved");
    ASSERT_TRUE(XCAFDoc_ShapeTool::IsReference(label));
    EXPECT_TRUE(sdk_take_inventory(document, {}).instance_names.empty());
}

TEST(StructureNames, MayBeInventedWhereTheSourceHasNone)
{
    EXPECT_TRUE(findings_of(assembly("", "", "Cube"), assembly("Frame", "NAUO1", "NAUO2")).empty());
}

TEST(StructureNames, AreComparedBetweenTwoModelsOfOneFormat)
{
    auto const a = assembly("Frame", "left", "right");
    EXPECT_TRUE(sdk_compare_models(a, a, {}, {.same_format = true}).findings.empty());
    auto const findings =
        sdk_compare_models(a, assembly("Frame", "left", "middle"), {}, {.same_format = true}).findings;
    ASSERT_EQ(kinds(findings), (Kinds{"name", "name"}));
    EXPECT_EQ(findings[0].text.formatted(), "The name \"right\" has 1 instances in A and 0 in B");
    EXPECT_EQ(findings[1].part, "middle");
    EXPECT_TRUE(sdk_compare_models(a, assembly("Other", "", ""), {}, {}).findings.empty());
}

TEST(StructureNames, AreLookedForAsTheFormatWritesThem)
{
    auto options = everything();
    options.promise.ascii_names = true;
    auto const source = assembly("Gehäuse", "früh", "spät");
    auto const output = assembly("Geh_use", "fr_h", "sp_t");
    EXPECT_TRUE(findings_of(source, output, options).empty());
    options.promise.ascii_names = false;
    EXPECT_EQ(kinds(findings_of(source, output, options)), (Kinds{"name", "name", "name"}));
    options.promise.holds.structure = false;
    EXPECT_TRUE(findings_of(source, output, options).empty());
}
