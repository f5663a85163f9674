#include "sdk/sdkFlatten.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitParts.h"

#include <BRepBndLib.hxx>
#include <Bnd_Box.hxx>
#include <TopExp_Explorer.hxx>
#include <gtest/gtest.h>

class Flatten : public testing::TestWithParam<sdkPlacing> {};

TEST_P(Flatten, PutsThePartsAtTheirPlacesWithNamesColoursAndLayers)
{
    sdkDocument document;
    kit_add_assembly(document);
    EXPECT_EQ(sdk_flatten(document, document.free_shapes(), GetParam()), 1);
    EXPECT_EQ(document.free_shapes().Length(), 3);
    EXPECT_EQ(document.parts().Length(), 3);
    auto const measures = sdk_measure(document);
    EXPECT_NEAR(measures.volume, 2000, 1e-6);
    EXPECT_NEAR(measures.box.CornerMax().X(), 50, 1e-6);
    for (auto const & part : document.parts()) {
        bool const red = sdkDocument::name(part) == kit_red_name;
        EXPECT_TRUE(red || sdkDocument::name(part) == kit_blue_name);
        EXPECT_TRUE(kit_colour(document, part).IsEqual(red ? kit_red() : kit_blue()));
        EXPECT_EQ(document.layers()->IsSet(part, TCollection_ExtendedString(kit_layer_name)), red);
    }
}

TEST_P(Flatten, KeepsTheColoursOfFaces)
{
    sdkDocument document;
    auto const cube = document.add_shape(kit_cube(10), "Cube");
    TDF_Label face;
    ASSERT_TRUE(document.shapes()->AddSubShape(
        cube, TopExp_Explorer(XCAFDoc_ShapeTool::GetShape(cube), TopAbs_FACE).Current(), face));
    document.colours()->SetColor(face, kit_red(), XCAFDoc_ColorSurf);
    auto const assembly = document.shapes()->NewShape();
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(0, 0, 7));
    document.shapes()->AddComponent(assembly, cube, TopLoc_Location(shift));
    document.shapes()->UpdateAssemblies();

    sdk_flatten(document, document.free_shapes(), GetParam());
    ASSERT_EQ(document.parts().Length(), 1);
    EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(kit_red()));
}

TEST_P(Flatten, LetsTheColourOfItsPlaceHideThatOfThePart)
{
    // Of whichever kind the colours are.
    for (auto const of_part : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf}) {
        for (auto const of_place : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf}) {
            sdkDocument document;
            auto const cube = document.add_shape(kit_cube(10), "Cube");
            document.colours()->SetColor(cube, kit_red(), of_part);
            auto const assembly = document.shapes()->NewShape();
            auto const place = document.shapes()->AddComponent(assembly, cube, TopLoc_Location());
            document.colours()->SetColor(place, kit_blue(), of_place);
            document.colours()->SetColor(assembly, kit_red(), of_place);
            document.shapes()->UpdateAssemblies();
            sdk_flatten(document, document.free_shapes(), GetParam());
            ASSERT_EQ(document.parts().Length(), 1);
            EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(kit_blue()));
        }
    }
}

TEST_P(Flatten, LetsTheColourOfThePartHideThoseOfAssemblies)
{
    sdkDocument document;
    auto const cube = document.add_shape(kit_cube(10), "Cube");
    document.colours()->SetColor(cube, kit_red(), XCAFDoc_ColorSurf);
    auto const inner = document.shapes()->NewShape();
    document.shapes()->AddComponent(inner, cube, TopLoc_Location());
    auto const outer = document.shapes()->NewShape();
    auto const place = document.shapes()->AddComponent(outer, inner, TopLoc_Location());
    document.colours()->SetColor(inner, kit_blue(), XCAFDoc_ColorSurf);
    document.colours()->SetColor(place, kit_blue(), XCAFDoc_ColorSurf);
    document.shapes()->UpdateAssemblies();
    sdk_flatten(document, document.free_shapes(), GetParam());
    ASSERT_EQ(document.parts().Length(), 1);
    EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(kit_red()));
}

TEST_P(Flatten, GivesPartsTheColourAndTheLayerOfTheirAssembly)
{
    sdkDocument document;
    auto const cube = document.add_shape(kit_cube(10), "Cube");
    auto const assembly = document.shapes()->NewShape();
    document.shapes()->AddComponent(assembly, cube, TopLoc_Location());
    document.colours()->SetColor(assembly, kit_red(), XCAFDoc_ColorSurf);
    document.layers()->SetLayer(assembly, "Outer");
    document.shapes()->UpdateAssemblies();
    sdk_flatten(document, document.free_shapes(), GetParam());
    ASSERT_EQ(document.parts().Length(), 1);
    EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(kit_red()));
    EXPECT_TRUE(document.layers()->IsSet(document.parts().First(), "Outer"));
}

TEST_P(Flatten, LeavesPartsAlone)
{
    sdkDocument document;
    auto const cube = document.add_shape(kit_cube(10), "Cube");
    EXPECT_EQ(sdk_flatten(document, document.free_shapes(), GetParam()), 0);
    EXPECT_EQ(document.free_shapes().First(), cube);
}

TEST_P(Flatten, TakesFacesThatHaveOnlyTriangles)
{
    sdkDocument document;
    auto const cube = document.add_shape(kit_facet_cube(), "Facets");
    auto const assembly = document.shapes()->NewShape();
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(90, 0, 0));
    document.shapes()->AddComponent(assembly, cube, TopLoc_Location(shift));
    document.shapes()->UpdateAssemblies();
    sdk_flatten(document, document.free_shapes(), GetParam());
    Bnd_Box box;
    BRepBndLib::Add(sdk_whole_shape(document), box);
    EXPECT_NEAR(box.CornerMax().X(), 100, 1e-3);
    EXPECT_EQ(document.count_entities().facets_only, 1);
}

TEST_P(Flatten, PutsScalesAndMirrorsIntoTheGeometry)
{
    for (auto const & shape : {kit_cube(10), kit_facet_cube()}) {
        sdkDocument document;
        auto const cube = document.add_shape(shape, "Cube");
        TDF_Label face;
        bool const solid = document.shapes()->AddSubShape(
            cube, TopExp_Explorer(XCAFDoc_ShapeTool::GetShape(cube), TopAbs_FACE).Current(), face);
        // The facets are one face, which is no part of itself.
        document.colours()->SetColor(solid ? face : cube, kit_red(), XCAFDoc_ColorSurf);
        auto const assembly = document.shapes()->NewShape();
        gp_Trsf twice;
        twice.SetScale(gp_Pnt(-10, 0, 0), -2);
        document.shapes()->AddComponent(assembly, cube, TopLoc_Location(twice));
        sdk_flatten(document, document.free_shapes(), GetParam());
        ASSERT_EQ(document.parts().Length(), 1);
        EXPECT_NEAR(sdk_measure(document).volume, 8000, 1e-6);
        EXPECT_NEAR(sdk_measure(document).box.CornerMin().X(), -50, 1e-5);
        EXPECT_TRUE(kit_colour(document, document.parts().First()).IsEqual(kit_red()));
    }
}

INSTANTIATE_TEST_SUITE_P(Placings, Flatten, testing::Values(sdkPlacing::geometry, sdkPlacing::compound));
