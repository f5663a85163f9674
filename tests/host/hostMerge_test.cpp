#include "host/hostMerge.h"

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

TEST(HostMerge, LeavesNothingWhenNoInputHasShapes)
{
    sdkDocument document;
    hostMerge merge(document, "/out/whole.igs");
    merge.add({}, "/in/empty.step");
    merge.finish();
    EXPECT_TRUE(document.empty());
}
