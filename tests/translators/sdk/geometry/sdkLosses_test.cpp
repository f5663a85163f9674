#include "sdk/geometry/sdkLosses.h"

#include "sdk/sdkStated.h"
#include "translators/kit/kitParts.h"
#include "translators/kit/kitTrip.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopoDS_Vertex.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_MaterialTool.hxx>
#include <gtest/gtest.h>

TEST(Losses, CountsAttributesOfPartsAssembliesAndSubShapes)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const counts = sdk_count_attributes(document);
    EXPECT_EQ(counts.assemblies, 1);
    EXPECT_EQ(counts.instances, 3);
    EXPECT_EQ(counts.named, 3);
    EXPECT_EQ(counts.coloured, 2);
    EXPECT_EQ(counts.layered, 1);
}

TEST(Losses, SaysNothingWhenTheFormatHoldsEverything)
{
    sdkDocument document;
    kit_add_assembly(document);
    kitReporter reporter;
    EXPECT_EQ(sdk_report_losses(document, {}, "STEP", reporter), 0);
    EXPECT_TRUE(reporter.outputs.empty());
}

TEST(Losses, SaysNothingOfWhatIsNotThere)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "");
    kitReporter reporter;
    sdk_report_losses(document, {false, false, false, false, false, false, true}, "BREP", reporter);
    EXPECT_TRUE(reporter.outputs.empty());
}

TEST(Losses, NamesEachKindWithItsCount)
{
    sdkDocument document;
    kit_add_assembly(document);
    document.add_shape(kit_wire(), "Sketch");
    document.add_shape(BRepBuilderAPI_MakeVertex(gp_Pnt()).Vertex(), "Point");
    kitReporter reporter;
    EXPECT_EQ(sdk_report_losses(document, {false, false, false, false, false, false, false}, "STL", reporter),
              3);
    EXPECT_TRUE(reporter.says("1 assemblies with 3 instances are flattened"));
    EXPECT_TRUE(reporter.says("5 names are lost"));
    EXPECT_TRUE(reporter.says("the colours of 2 shapes are lost"));
    EXPECT_TRUE(reporter.says("the layers of 1 shapes are lost"));
    EXPECT_TRUE(reporter.says("12 faces become triangles"));
    EXPECT_TRUE(reporter.says("2 curves are left out"));
    EXPECT_TRUE(reporter.says("1 points are left out"));
    EXPECT_EQ(reporter.outputs.size(), 7U);
    EXPECT_TRUE(reporter.misfits.empty());
}

TEST(Losses, NameWhatTheSourceHasStatedOfItsProducts)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "");
    sdk_add_stated(document, 2);
    sdk_add_stated(document, 1);
    kitReporter reporter;
    sdk_report_losses(document, {}, "STL", reporter);
    EXPECT_TRUE(reporter.says("STL files hold no validation properties"));
    EXPECT_TRUE(reporter.says("states for 3 products are lost"));
    EXPECT_TRUE(reporter.misfits.empty());
}

TEST(Losses, NamesMaterials)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_cube(10), "Part");
    auto const materials = XCAFDoc_DocumentTool::MaterialTool(document.handle()->Main());
    materials->SetMaterial(part, new TCollection_HAsciiString("Steel"), new TCollection_HAsciiString(""),
                           7.85, new TCollection_HAsciiString(""), new TCollection_HAsciiString(""));
    materials->SetMaterial(document.add_shape(kit_cube(20), "Other"), new TCollection_HAsciiString(""),
                           new TCollection_HAsciiString(""), 0, new TCollection_HAsciiString(""),
                           new TCollection_HAsciiString(""));
    kitReporter reporter;
    sdk_report_losses(document, {}, "BREP", reporter);
    EXPECT_EQ(reporter.outputs, std::vector<std::string>{"BREP files hold no materials: the materials or "
                                                         "densities of 1 parts are lost"});
}
