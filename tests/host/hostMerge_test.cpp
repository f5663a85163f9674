#include "host/hostMerge.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> component_names(TDF_Label const & assembly)
{
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(assembly, components);
    std::vector<std::string> names;
    for (auto const & component : components) {
        names.push_back(sdkDocument::name(component));
    }
    return names;
}

} // namespace

TEST(HostMerge, MakesEachInputAComponentNamedAfterItsFile)
{
    sdkDocument document;
    hostMerge merge(document, "/out/whole.igs");
    for (char const * const name : {"one", "two"}) {
        auto const before = document.free_shapes();
        document.add_shape(kit_cube(10), std::string("Part ") + name);
        merge.add(document.free_shapes_since(before), std::string("/in/") + name + ".step");
    }
    merge.finish();
    ASSERT_EQ(document.free_shapes().Length(), 1);
    auto const whole = document.free_shapes().First();
    EXPECT_EQ(sdkDocument::name(whole), "whole");
    EXPECT_EQ(component_names(whole), (std::vector<std::string>{"one", "two"}));
    EXPECT_EQ(sdk_count_entities(XCAFDoc_ShapeTool::GetShape(whole)).faces, 12);
}

TEST(HostMerge, GathersAnInputOfSeveralShapesUnderOneComponent)
{
    sdkDocument document;
    hostMerge merge(document, "/out/whole.igs");
    auto const before = document.free_shapes();
    document.add_shape(kit_cube(10), "A");
    document.add_shape(kit_cube(20), "B");
    merge.add(document.free_shapes_since(before), "/in/pair.step");
    merge.finish();
    auto const whole = document.free_shapes().First();
    EXPECT_EQ(component_names(whole), std::vector<std::string>{"pair"});
    EXPECT_EQ(document.parts().Length(), 2);
}

TEST(HostMerge, PlacesWhatAFreeReferencePlaces)
{
    for (int const copies : {1, 2}) {
        sdkDocument document;
        hostMerge merge(document, "/out/whole.igs");
        auto const before = document.free_shapes();
        auto const cube = kit_cube(10);
        for (int copy = 1; copy <= copies; ++copy) {
            gp_Trsf shift;
            shift.SetTranslation(gp_Vec(20.0 * copy, 0, 0));
            document.add_shape(cube.Moved(TopLoc_Location(shift)), "Copy " + std::to_string(copy));
        }
        merge.add(document.free_shapes_since(before), "/in/placed.igs");
        merge.finish();
        ASSERT_EQ(document.free_shapes().Length(), 1);
        EXPECT_EQ(document.parts().Length(), 1);
        EXPECT_EQ(sdk_measure(document).solids, copies);
        EXPECT_NEAR(sdk_measure(document).volume, 1000 * copies, 1e-6);
        EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), 20, 1e-4);
        EXPECT_NEAR(sdk_measure(document).box.CornerMax().X(), 20 * copies + 10, 1e-4);
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(document.free_shapes().First(), components, Standard_True);
        for (auto const & component : components) {
            TDF_Label referred;
            ASSERT_TRUE(XCAFDoc_ShapeTool::GetReferredShape(component, referred));
            EXPECT_FALSE(XCAFDoc_ShapeTool::IsReference(referred));
        }
    }
}

TEST(HostMerge, LeavesNothingWhenNoInputHasShapes)
{
    sdkDocument document;
    hostMerge merge(document, "/out/whole.igs");
    merge.add({}, "/in/empty.step");
    merge.finish();
    EXPECT_TRUE(document.empty());
}
