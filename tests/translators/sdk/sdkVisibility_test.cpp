#include "sdk/sdkFlatten.h"
#include "sdk/sdkVisibility.h"

#include "translators/kit/kitParts.h"

#include <TopExp_Explorer.hxx>
#include <gtest/gtest.h>

namespace {

TDF_Label component(TDF_Label const & assembly, int number)
{
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(assembly, components);
    return components.Value(number);
}

} // namespace

TEST(SdkVisibility, EverythingIsSeenUntilItIsHidden)
{
    sdkDocument document;
    auto const seen = document.add_shape(kit_cube(10), "seen");
    auto const hidden = document.add_shape(kit_cube(20), "hidden");
    EXPECT_TRUE(sdk_hidden_labels(document).IsEmpty());
    sdk_hide(document, hidden);
    EXPECT_FALSE(sdk_hidden(document, seen));
    EXPECT_TRUE(sdk_hidden(document, hidden));
    ASSERT_EQ(sdk_hidden_labels(document).Length(), 1);
    EXPECT_EQ(sdk_hidden_labels(document).First(), hidden);
}

TEST(SdkVisibility, ANullLabelIsNotHidden)
{
    sdkDocument document;
    sdk_hide(document, {});
    EXPECT_FALSE(sdk_hidden(document, {}));
}

TEST(SdkVisibility, AnInstanceIsHiddenWithItsDefinitionButNotTheOtherWayRound)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const assembly = document.free_shapes().First();
    TDF_Label definition;
    ASSERT_TRUE(XCAFDoc_ShapeTool::GetReferredShape(component(assembly, 2), definition));
    sdk_hide(document, component(assembly, 2));
    EXPECT_TRUE(sdk_hidden(document, component(assembly, 2)));
    EXPECT_FALSE(sdk_hidden(document, component(assembly, 3)));
    EXPECT_FALSE(sdk_hidden(document, definition));
    sdk_hide(document, definition);
    EXPECT_TRUE(sdk_hidden(document, component(assembly, 3)));
    EXPECT_FALSE(sdk_hidden(document, component(assembly, 1)));
}

TEST(SdkVisibility, ASubShapeIsHiddenAlone)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_compound({kit_cube(10), kit_cube(20)}), "two");
    TopExp_Explorer const solids(XCAFDoc_ShapeTool::GetShape(part), TopAbs_SOLID);
    auto const solid = document.shapes()->AddSubShape(part, solids.Current());
    sdk_hide(document, solid);
    EXPECT_TRUE(sdk_hidden(document, solid));
    EXPECT_FALSE(sdk_hidden(document, part));
    EXPECT_EQ(sdk_hidden_labels(document).Length(), 1);
}

TEST(SdkVisibility, AShapeIsHiddenWhenAllItsLayersAre)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_cube(10), "part");
    auto const layers = document.layers();
    layers->SetLayer(part, TCollection_ExtendedString("a"));
    layers->SetLayer(part, TCollection_ExtendedString("b"));
    TDF_Label layer;
    ASSERT_TRUE(layers->FindLayer(TCollection_ExtendedString("a"), layer));
    layers->SetVisibility(layer, Standard_False);
    EXPECT_FALSE(sdk_hidden(document, part));
    ASSERT_TRUE(layers->FindLayer(TCollection_ExtendedString("b"), layer));
    layers->SetVisibility(layer, Standard_False);
    EXPECT_TRUE(sdk_hidden(document, part));
}

TEST(SdkVisibility, PartsAreHiddenForTheirInstances)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const assembly = document.free_shapes().First();
    TDF_Label red;
    TDF_Label blue;
    ASSERT_TRUE(XCAFDoc_ShapeTool::GetReferredShape(component(assembly, 1), red));
    ASSERT_TRUE(XCAFDoc_ShapeTool::GetReferredShape(component(assembly, 2), blue));
    sdk_hide(document, component(assembly, 1));
    sdk_hide(document, component(assembly, 2));
    EXPECT_EQ(sdk_hide_parts_for_instances(document), 1);
    EXPECT_TRUE(sdk_hidden(document, red));
    EXPECT_FALSE(sdk_hidden(document, blue));
    EXPECT_FALSE(sdk_hidden(document, component(assembly, 2)));
    ASSERT_EQ(sdk_hidden_labels(document).Length(), 1);
}

TEST(SdkVisibility, PartsAreHiddenForTheirAssembly)
{
    sdkDocument document;
    kit_add_assembly(document);
    sdk_hide(document, document.free_shapes().First());
    EXPECT_EQ(sdk_hide_parts_for_instances(document), 0);
    EXPECT_EQ(sdk_hidden_labels(document).Length(), document.parts().Length());
}

TEST(SdkVisibility, APartThatIsTakenOutOfAHiddenPlaceStaysHidden)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const assembly = document.free_shapes().First();
    sdk_hide(document, component(assembly, 2));
    sdk_flatten(document, document.free_shapes(), sdkPlacing::geometry);
    EXPECT_EQ(document.free_shapes().Length(), 3);
    EXPECT_EQ(sdk_hidden_labels(document).Length(), 1);
}
