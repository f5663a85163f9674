#include "stepTextTest.h"

#include "sdk/sdkVisibility.h"

#include <algorithm>
#include <cmath>

class StepVisibility : public stepTextTest {
protected:
    // The volumes of what is hidden, sorted.
    static std::vector<int> hidden_volumes(sdkDocument const & document)
    {
        std::vector<int> result;
        for (auto const & label : sdk_hidden_labels(document)) {
            result.push_back(
                static_cast<int>(std::lround(sdk_measure(XCAFDoc_ShapeTool::GetShape(label)).volume)));
        }
        std::sort(result.begin(), result.end());
        return result;
    }

    std::vector<int> hidden_after_trip(sdkDocument & document, Values const & reading = {},
                                       Values const & writing = {})
    {
        auto const written = write(document, path("hidden.stp"), writing);
        EXPECT_TRUE(written) << written.text().formatted();
        sdkDocument back;
        EXPECT_TRUE(read(path("hidden.stp"), back, reading));
        return hidden_volumes(back);
    }

    static void add_two_bodies(sdkDocument & document, TopoDS_Shape & second)
    {
        auto const part = document.add_shape(kit_compound({kit_cube(10), kit_hollow_cube()}), "two");
        TopExp_Explorer solids(XCAFDoc_ShapeTool::GetShape(part), TopAbs_SOLID);
        solids.Next();
        second = solids.Current();
        sdk_hide(document, document.shapes()->AddSubShape(part, second));
    }
};

TEST_F(StepVisibility, OfPartsStaysWithAndWithoutColours)
{
    for (Values const & values :
         {Values{}, Values{{"stepWriteColours", "false"}, {"stepWriteLayers", "false"}}}) {
        sdkDocument document;
        document.add_shape(kit_cube(10), "seen");
        auto const hidden = document.add_shape(kit_cube(20), "hidden");
        document.colours()->SetColor(hidden, kit_red(), XCAFDoc_ColorSurf);
        sdk_hide(document, hidden);
        EXPECT_EQ(hidden_after_trip(document, {}, values), std::vector<int>{8000});
        ASSERT_EQ(account().findings().size(), 1U);
        EXPECT_EQ(account().findings().front().kind, "hidden");
        EXPECT_EQ(account().findings().front().weight, sdkWeight::note);
        EXPECT_EQ(account().findings().front().source, 1);
    }
}

TEST_F(StepVisibility, IsReadWhereColoursAndLayersAreNot)
{
    Values const neither{{"stepReadColours", "false"}, {"stepReadLayers", "false"}};
    sdkDocument document;
    document.add_shape(kit_cube(10), "seen");
    sdk_hide(document, document.add_shape(kit_cube(20), "hidden"));
    EXPECT_EQ(hidden_after_trip(document, neither), std::vector<int>{8000});
    sdkDocument bodies;
    TopoDS_Shape second;
    add_two_bodies(bodies, second);
    EXPECT_EQ(hidden_after_trip(bodies, neither), std::vector<int>{7000});
}

TEST_F(StepVisibility, OfOneBodyOfAPartStays)
{
    sdkDocument document;
    TopoDS_Shape second;
    add_two_bodies(document, second);
    EXPECT_EQ(hidden_after_trip(document), std::vector<int>{7000});
}

TEST_F(StepVisibility, OfALayerStays)
{
    sdkDocument document;
    auto const layers = document.layers();
    layers->SetLayer(document.add_shape(kit_cube(10), "seen"), TCollection_ExtendedString("on"));
    layers->SetLayer(document.add_shape(kit_cube(20), "hidden"), TCollection_ExtendedString("off"));
    TDF_Label layer;
    ASSERT_TRUE(layers->FindLayer(TCollection_ExtendedString("off"), layer));
    layers->SetVisibility(layer, Standard_False);
    EXPECT_EQ(hidden_after_trip(document), std::vector<int>{8000});
    EXPECT_EQ(hidden_after_trip(document, {{"stepReadLayers", "false"}}), std::vector<int>{8000});
}

TEST_F(StepVisibility, IsNoFindingWhereAllIsSeen)
{
    sdkDocument document;
    kit_add_assembly(document);
    EXPECT_TRUE(hidden_after_trip(document).empty());
    EXPECT_TRUE(account().findings().empty());
}
