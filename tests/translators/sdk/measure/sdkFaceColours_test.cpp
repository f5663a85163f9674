#include "measureBodies.h"

#include "sdk/measure/sdkFaceColours.h"
#include "sdk/measure/sdkModelComparison.h"
#include "translators/kit/kitParts.h"

#include <gtest/gtest.h>

namespace {

// A cube with one face red and one blue, both of the same size; the others have the third colour.
sdkInventory cube(std::size_t red, std::size_t blue, Quantity_Color const * others = nullptr)
{
    sdkDocument document;
    auto const part = document.add_shape(kit_cube(10), "Cube");
    std::size_t at = 0;
    for (TopExp_Explorer face(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE); face.More();
         face.Next(), ++at) {
        auto const label = document.shapes()->AddSubShape(part, face.Current());
        if (at == red) {
            document.colours()->SetColor(label, Quantity_NOC_RED, XCAFDoc_ColorSurf);
        } else if (at == blue) {
            document.colours()->SetColor(label, Quantity_NOC_BLUE1, XCAFDoc_ColorSurf);
        } else if (others) {
            document.colours()->SetColor(label, *others, XCAFDoc_ColorSurf);
        }
    }
    return sdk_take_inventory(document, {});
}

} // namespace

TEST(FaceColours, AreTheSameInWhateverOrderTheFacesStand)
{
    EXPECT_TRUE(findings_of(cube(0, 3), cube(0, 3)).empty());
    auto source = cube(0, 3);
    auto output = source;
    auto & body = output.bodies[0];
    std::reverse(body.measure.faces.begin(), body.measure.faces.end());
    std::reverse(body.face_colours.begin(), body.face_colours.end());
    EXPECT_TRUE(findings_of(source, output).empty());
}

TEST(FaceColours, AreHeldForEachFace)
{
    auto const findings = findings_of(cube(0, 3), cube(3, 0));
    ASSERT_EQ(kinds(findings), (Kinds{"colour"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_EQ(findings[0].place, "(0, 5, 5)");
    EXPECT_EQ(findings[0].text.formatted(),
              "Cube has 2 faces with another colour in the output; the one at (0, 5, 5) has #ff0000 in the "
              "source and #0000ff in the output");
    auto options = everything();
    options.promise.holds.colours = false;
    EXPECT_TRUE(findings_of(cube(0, 3), cube(3, 0), options).empty());
}

TEST(FaceColours, OfDividedFacesAreNotKnown)
{
    auto const source = cube(0, 3);
    auto output = cube(3, 0);
    for (auto & face : output.bodies[0].measure.faces) {
        face.area /= 2;
    }
    EXPECT_TRUE(findings_of(source, output).empty());
}

TEST(FaceColours, MayNotAppearOnABodyThatHasSomeOfItsOwn)
{
    Quantity_Color const green(Quantity_NOC_GREEN1);
    EXPECT_EQ(kinds(findings_of(cube(0, 3), cube(0, 3, &green))), (Kinds{"colour"}));
}

TEST(FaceColours, AreNotSoughtOnBodiesOfOneColour)
{
    EXPECT_TRUE(cube(9, 9).bodies[0].face_colours.empty());
    Quantity_Color const green(Quantity_NOC_GREEN1);
    EXPECT_TRUE(cube(9, 9, &green).bodies[0].face_colours.empty());
    EXPECT_EQ(cube(0, 3).bodies[0].face_colours.size(), 6U);
}

TEST(FaceColours, AreComparedBetweenTwoModels)
{
    auto const a = cube(0, 3);
    auto const b = cube(3, 0);
    EXPECT_EQ(kinds(sdk_compare_models(a, b, {}, {}).findings), (Kinds{"colour"}));
    EXPECT_TRUE(sdk_compare_models(a, a, {}, {}).findings.empty());
    Quantity_Color const green(Quantity_NOC_GREEN1);
    auto const filled = cube(0, 3, &green);
    EXPECT_EQ(kinds(sdk_compare_models(a, filled, {}, {.same_format = true}).findings), (Kinds{"colour"}));
}
