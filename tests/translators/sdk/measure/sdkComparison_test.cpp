#include "measureBodies.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace {

using Findings = std::vector<sdkFinding>;

Findings compare(TopoDS_Shape const & source, TopoDS_Shape const & output)
{
    auto const findings =
        sdk_compare(inventory_of({{"Part", source}}), inventory_of({{"Part", output}}), everything());
    EXPECT_TRUE(all_fit(findings));
    for (auto const & finding : findings) {
        EXPECT_EQ(finding.part, "Part");
    }
    return findings;
}

TopoDS_Shape solid_of(std::vector<TopoDS_Shape> const & shells)
{
    BRep_Builder builder;
    TopoDS_Solid solid;
    builder.MakeSolid(solid);
    for (auto const & shell : shells) {
        builder.Add(solid, shell);
    }
    return solid;
}

TopoDS_Shape shell_of(TopoDS_Shape const & solid)
{
    return TopExp_Explorer(solid, TopAbs_SHELL).Current();
}

} // namespace

TEST(Comparison, FindsNothingWhereAllAgrees)
{
    EXPECT_TRUE(compare(kit_cube(10), kit_cube(10)).empty());
    EXPECT_TRUE(compare(kit_hollow_cube(), kit_hollow_cube()).empty());
}

TEST(Comparison, TellsVolumeAndArea)
{
    auto const findings =
        compare(BRepPrimAPI_MakeBox(10., 10., 10.).Solid(), BRepPrimAPI_MakeBox(10., 10., 11.).Solid());
    EXPECT_EQ(kinds(findings), (Kinds{"area", "centroid", "volume"}));
    auto const * volume = find(findings, "volume");
    EXPECT_EQ(volume->weight, sdkWeight::difference);
    EXPECT_NEAR(*volume->source, 1000, 1e-6);
    EXPECT_NEAR(*volume->output, 1100, 1e-6);
    EXPECT_EQ(volume->place, "(5, 5, 5)");
    EXPECT_NEAR(*find(findings, "area")->output, 640, 1e-6);
    EXPECT_NEAR(*find(findings, "centroid")->output, 0.5, 1e-6);
}

TEST(Comparison, CallsABodyWithoutANameWhatItIs)
{
    auto const findings =
        sdk_compare(inventory_of({{"", BRepPrimAPI_MakeBox(10., 10., 10.).Solid()}}),
                    inventory_of({{"", BRepPrimAPI_MakeBox(10., 10., 11.).Solid()}}), everything());
    auto const * volume = find(findings, "volume");
    ASSERT_NE(volume, nullptr);
    EXPECT_EQ(volume->part, "");
    EXPECT_EQ(std::get<std::string>(volume->text.arguments()[0]), "term::solid");
    EXPECT_TRUE(volume->text.formatted().starts_with("solid at "));
}

TEST(Comparison, TellsABodyThatMoved)
{
    auto const findings = compare(kit_cube(10), BRepPrimAPI_MakeBox(gp_Pnt(1, 0, 0), 10., 10., 10.).Solid());
    EXPECT_EQ(kinds(findings), (Kinds{"centroid"}));
    EXPECT_NEAR(*findings[0].output, 1, 1e-9);
}

TEST(Comparison, TellsABodyThatLiesOtherwise)
{
    auto const box = BRepPrimAPI_MakeBox(gp_Pnt(-5, -10, -15), 10., 20., 30.).Solid();
    gp_Trsf turn;
    turn.SetRotation(gp::OZ(), 0.3);
    EXPECT_EQ(kinds(compare(box, BRepBuilderAPI_Transform(box, turn, Standard_True).Shape())),
              (Kinds{"shape"}));
}

TEST(Comparison, TellsALostVoidAsAShell)
{
    auto const findings = compare(kit_hollow_cube(), BRepPrimAPI_MakeBox(20., 20., 20.).Solid());
    EXPECT_NE(find(findings, "shells"), nullptr);
    auto const * faces = find(findings, "missing-face");
    ASSERT_NE(faces, nullptr);
    EXPECT_EQ(faces->weight, sdkWeight::loss);
    EXPECT_EQ(faces->source, 12);
    EXPECT_EQ(faces->output, 6);
}

TEST(Comparison, TakesFacesThatWereJoinedForADifferenceAndDividedOnesForNone)
{
    auto one = inventory_of({{"Part", kit_cube(10)}});
    auto divided = one;
    divided.bodies[0].measure.faces.emplace_back();
    EXPECT_TRUE(sdk_compare(one, divided, everything()).empty());
    auto const findings = sdk_compare(divided, one, everything());
    ASSERT_EQ(kinds(findings), (Kinds{"faces"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_EQ(findings[0].source, 7);
    EXPECT_EQ(findings[0].output, 6);
}

TEST(Comparison, TellsEdgesOfOneFaceTurnedFacesAndEdgesOffTheirSurfaces)
{
    auto const source = inventory_of({{"Part", kit_cube(10)}});
    struct Case {
        char const * kind;
        std::function<void(sdkBodyMeasure &)> change;
    };
    double const nan = std::numeric_limits<double>::quiet_NaN();
    for (auto const & [kind, change] : std::vector<Case>{
             {"free-edges", [](sdkBodyMeasure & measure) { measure.free_edges = 1; }},
             {"turned-faces", [](sdkBodyMeasure & measure) { measure.turned_edges = 4; }},
             {"edge-deviation", [](sdkBodyMeasure & measure) { measure.edge_deviation = 2e-4; }},
             {"edge-deviation", [=](sdkBodyMeasure & measure) { measure.edge_deviation = nan; }},
         }) {
        auto output = source;
        change(output.bodies[0].measure);
        auto const findings = sdk_compare(source, output, everything());
        ASSERT_EQ(kinds(findings), (Kinds{kind}));
        EXPECT_EQ(findings[0].weight, sdkWeight::difference);
        EXPECT_TRUE(all_fit(findings));
    }
}

TEST(Comparison, TellsWhatLooksToTheOtherSide)
{
    auto const cube = kit_cube(10);
    auto const cup = [&] {
        BRep_Builder builder;
        TopoDS_Shell shell;
        builder.MakeShell(shell);
        auto faces = kit_loose_faces(cube);
        for (std::size_t at = 1; at < faces.size(); ++at) {
            builder.Add(shell, faces[at]);
        }
        return shell;
    }();
    auto const pipe = TopExp_Explorer(BRepPrimAPI_MakeCylinder(5, 20).Solid(), TopAbs_FACE).Current();
    for (auto const & shape : {shell_of(cube), TopoDS_Shape(cup), kit_loose_faces(cube)[0], pipe}) {
        EXPECT_TRUE(compare(shape, shape).empty());
        auto const findings = compare(shape, shape.Reversed());
        ASSERT_EQ(kinds(findings), (Kinds{"turned-body"}));
        EXPECT_EQ(findings[0].weight, sdkWeight::difference);
        EXPECT_EQ(kinds(compare(shape.Reversed(), shape)), (Kinds{"turned-body"}));
        auto const both = kit_compound({shape, shape.Reversed()});
        EXPECT_TRUE(compare(both, kit_compound({shape.Reversed(), shape})).empty());
    }
}

TEST(Comparison, DoesNotBlameAnOutputForEdgesThatLieOffInTheSource)
{
    auto source = inventory_of({{"Part", kit_cube(10)}});
    source.bodies[0].measure.edge_deviation = 0.5;
    EXPECT_TRUE(sdk_compare(source, source, everything()).empty());
    auto output = source;
    output.bodies[0].measure.edge_deviation = 0.6;
    EXPECT_EQ(kinds(sdk_compare(source, output, everything())), (Kinds{"edge-deviation"}));
}

TEST(Comparison, NeverTakesWhatIsNoNumberForTheSame)
{
    auto const source = inventory_of({{"Part", kit_cube(10)}});
    auto output = source;
    output.bodies[0].measure.moments.SetValue(1, 1, std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(sdk_compare(source, output, everything()).empty());
    output = source;
    output.bodies[0].measure.volume = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(kinds(sdk_compare(source, output, everything())), (Kinds{"volume"}));
}

TEST(Comparison, TellsWhatIsMissingAndWhatIsExtra)
{
    auto const far = BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(900, 0, 0), gp::DZ()), 3, 50).Solid();
    auto const both = inventory_of({{"Cube", kit_cube(10)}, {"Rod", far}});
    auto const one = inventory_of({{"Cube", kit_cube(10)}});
    auto const missing = sdk_compare(both, one, everything());
    ASSERT_EQ(kinds(missing), (Kinds{"missing-solid"}));
    EXPECT_EQ(missing[0].weight, sdkWeight::loss);
    EXPECT_EQ(missing[0].part, "Rod");
    EXPECT_EQ(missing[0].place, "(900, 0, 25)");
    // What the body is, the user reads in the language of the message.
    EXPECT_EQ(missing[0].text.arguments().back(), sdkArgument("term::solid"));
    EXPECT_EQ(missing[0].text.formatted(), "Rod at (900, 0, 25) (solid) is not in the output");
    auto const extra = sdk_compare(one, both, everything());
    ASSERT_EQ(kinds(extra), (Kinds{"extra-solid"}));
    EXPECT_EQ(extra[0].weight, sdkWeight::difference);
}

TEST(Comparison, TakesOneOfTwoBodiesAtOnePlaceForALoss)
{
    auto const cube = kit_cube(10);
    auto const twice = inventory_of({{"Cube", kit_compound({cube, cube})}});
    auto const once = inventory_of({{"Cube", cube}});
    auto const findings = sdk_compare(twice, once, everything());
    ASSERT_EQ(kinds(findings), (Kinds{"missing-solid"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::loss);
    EXPECT_TRUE(all_fit(findings));
    EXPECT_TRUE(sdk_compare(twice, twice, everything()).empty());
    EXPECT_EQ(kinds(sdk_compare(once, twice, everything())), (Kinds{"extra-solid"}));
}

TEST(Comparison, LeavesHiddenBodiesOutWhenTheOutputDoes)
{
    auto source = inventory_of({{"Cube", kit_cube(10)}});
    source.bodies[0].hidden = true;
    auto options = everything();
    options.promise.hidden = false;
    EXPECT_TRUE(sdk_compare(source, sdkInventory(), options).empty());
    source.bodies[0].hidden = false;
    EXPECT_EQ(kinds(sdk_compare(source, sdkInventory(), options)), (Kinds{"missing-solid"}));
}

TEST(Comparison, OfCountsTellsSolidsFacesCurvesAndPoints)
{
    auto const counts = sdkMeasureLevel::counts;
    auto const cube = kit_cube(10);
    auto const full = inventory_of(
        {{"Cube", cube}, {"Wire", kit_wire()}, {"Point", TopExp_Explorer(cube, TopAbs_VERTEX).Current()}},
        counts);
    auto const none = inventory_of({}, counts);
    auto const findings = sdk_compare(full, none, everything());
    EXPECT_EQ(kinds(findings), (Kinds{"curves", "faces", "name", "name", "name", "points", "solids"}));
    EXPECT_TRUE(all_fit(findings));
    EXPECT_EQ(find(findings, "faces")->weight, sdkWeight::loss);
    EXPECT_EQ(find(findings, "faces")->source, 6);
    EXPECT_EQ(find(findings, "faces")->output, 0);
    EXPECT_TRUE(sdk_compare(full, full, everything()).empty());
}

TEST(Comparison, OfCountsLetsFacesBeDividedButNoSolidAppear)
{
    auto const counts = sdkMeasureLevel::counts;
    auto const one = inventory_of({{"A", kit_cube(10)}}, counts);
    auto const two = inventory_of({{"A", kit_cube(10)}, {"A", kit_cube(20)}}, counts);
    auto const findings = sdk_compare(one, two, everything());
    ASSERT_EQ(kinds(findings), (Kinds{"solids"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
}

TEST(Comparison, CountsCurvesAndPointsThatTheFormatHasNot)
{
    auto options = everything();
    options.promise.holds.curves = false;
    options.promise.holds.points = false;
    auto const cube = kit_cube(10);
    auto const source =
        inventory_of({{"Wire", kit_wire()}, {"Point", TopExp_Explorer(cube, TopAbs_VERTEX).Current()}});
    auto const findings = sdk_compare(source, inventory_of({}), options);
    ASSERT_EQ(kinds(findings), (Kinds{"missing-curve", "missing-point"}));
    EXPECT_EQ(find(findings, "missing-curve")->source, 2);
    EXPECT_EQ(find(findings, "missing-curve")->weight, sdkWeight::loss);
    EXPECT_EQ(find(findings, "missing-point")->source, 1);
}

TEST(Comparison, HoldsTrianglesAgainstSurfacesByTotals)
{
    auto options = everything();
    options.promise.holds.surfaces = false;
    options.promise.deflection = 0.1;
    auto const source = inventory_of({{"Cube", kit_cube(10)}});
    EXPECT_TRUE(sdk_compare(source, inventory_of({{"Cube", kit_facet_cube()}}), options).empty());
    EXPECT_EQ(kinds(sdk_compare(inventory_of({{"Cube", kit_cube(12)}}),
                                inventory_of({{"Cube", kit_facet_cube()}}), options)),
              (Kinds{"area", "corner", "volume"}));
}

TEST(Comparison, KnowsASolidThatIsOpen)
{
    auto const hollow = kit_hollow_cube();
    auto const findings = compare(hollow, solid_of({shell_of(hollow)}));
    EXPECT_NE(find(findings, "shells"), nullptr);
}
