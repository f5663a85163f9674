#include "measureBodies.h"

#include "sdk/sdkVisibility.h"
#include "translators/kit/kitIndicator.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <TopExp_Explorer.hxx>

#include <gtest/gtest.h>

namespace {

constexpr char const * red = "#ff0000ff";
constexpr char const * blue = "#0000ffff";

sdkInventory take(sdkDocument const & document)
{
    return sdk_take_inventory(document, {});
}

// An assembly with a cube of 10 at one place.
struct Placed {
    explicit Placed(TopLoc_Location const & place = {})
    {
        part = document.add_shape(kit_cube(10), "Cube");
        assembly = document.shapes()->NewShape();
        sdkDocument::set_name(assembly, "Assembly");
        instance = document.shapes()->AddComponent(assembly, part, place);
        document.shapes()->UpdateAssemblies();
    }

    sdkDocument document;
    TDF_Label part;
    TDF_Label assembly;
    TDF_Label instance;
};

TDF_Label face_of(sdkDocument & document, TDF_Label const & part)
{
    return document.shapes()->AddSubShape(
        part, TopExp_Explorer(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE).Current());
}

} // namespace

TEST(Inventory, HoldsEachInstanceAtItsPlace)
{
    sdkDocument document;
    kit_add_assembly(document);
    auto const inventory = take(document);
    EXPECT_EQ(inventory.assemblies, 1);
    EXPECT_EQ(inventory.instances, 3);
    ASSERT_EQ(inventory.count(sdkBodyKind::solid), 3);
    EXPECT_EQ(inventory.bodies.size(), 3U);
    EXPECT_LT(inventory.bodies[0].measure.centroid.Distance(gp_Pnt(5, 5, 5)), 1e-9);
    EXPECT_LT(inventory.bodies[1].measure.centroid.Distance(gp_Pnt(25, 5, 2.5)), 1e-9);
    EXPECT_LT(inventory.bodies[2].measure.centroid.Distance(gp_Pnt(45, 5, 2.5)), 1e-9);
    EXPECT_NEAR(inventory.volume(), 2000, 1e-9);
    EXPECT_NEAR(inventory.area(), 600 + 2 * 400, 1e-9);
    EXPECT_NEAR(inventory.extent().CornerMax().X(), 50, 1e-6);
}

TEST(Inventory, TurnsAndMirrorsWhatIsPlacedSo)
{
    gp_Trsf mirror;
    mirror.SetMirror(gp_Ax2(gp::Origin(), gp::DX()));
    sdkDocument document;
    auto const box = BRepPrimAPI_MakeBox(10., 20., 30.).Solid();
    document.add_shape(kit_compound({box.Moved(TopLoc_Location(mirror), Standard_False)}), "Mirrored");
    auto const inventory = take(document);
    ASSERT_EQ(inventory.bodies.size(), 1U);
    auto const & body = inventory.bodies[0];
    EXPECT_NEAR(body.measure.volume, 6000, 1e-9);
    EXPECT_LT(body.measure.centroid.Distance(gp_Pnt(-5, 10, 15)), 1e-9);
}

TEST(Inventory, KnowsASolidThatIsInsideOut)
{
    auto const inventory = inventory_of({{"Cube", kit_cube(10).Reversed()}});
    ASSERT_EQ(inventory.bodies.size(), 1U);
    EXPECT_NEAR(inventory.bodies[0].measure.volume, -1000, 1e-9);
}

TEST(Inventory, KnowsSolidsShellsFacesMeshesCurvesAndPointsApart)
{
    auto const cube = kit_cube(10);
    auto const shell = TopExp_Explorer(cube, TopAbs_SHELL).Current();
    auto const face = TopExp_Explorer(cube, TopAbs_FACE).Current();
    auto const inventory = inventory_of({{"Solid", cube},
                                         {"Shell", shell},
                                         {"Face", face},
                                         {"Mesh", kit_facet_cube()},
                                         {"Wire", kit_wire()},
                                         {"Point", BRepBuilderAPI_MakeVertex(gp_Pnt(1, 2, 3)).Vertex()}});
    EXPECT_EQ(inventory.count(sdkBodyKind::solid), 1);
    EXPECT_EQ(inventory.count(sdkBodyKind::shell), 1);
    EXPECT_EQ(inventory.count(sdkBodyKind::face), 1);
    EXPECT_EQ(inventory.count(sdkBodyKind::mesh), 1);
    EXPECT_EQ(inventory.count(sdkBodyKind::curve), 2);
    EXPECT_EQ(inventory.count(sdkBodyKind::point), 1);
    EXPECT_NEAR(inventory.length(), 10 + 5 * std::acos(-1) / 2, 1e-9);
    EXPECT_EQ(inventory.bodies.back().place(), "(1, 2, 3)");
    EXPECT_EQ(inventory.bodies.back().title(), "Point");
}

TEST(Inventory, LeavesOutWhatIsNotToBeProcessed)
{
    sdkDocument document;
    document.add_shape(kit_cube(10), "Cube");
    document.add_shape(kit_wire(), "Wire");
    EXPECT_EQ(sdk_take_inventory(document, {.surfaces = false}).bodies.size(), 2U);
    EXPECT_EQ(sdk_take_inventory(document, {.wireframe = false}).bodies.size(), 1U);
}

TEST(Inventory, TakesASharedEdgeOnceAndABodyAsOftenAsItIsUsed)
{
    auto const wire = kit_wire();
    EXPECT_EQ(inventory_of({{"Wires", kit_compound({wire, wire})}}).bodies.size(), 2U);
    auto const cube = kit_cube(10);
    EXPECT_EQ(inventory_of({{"Cubes", kit_compound({cube, cube})}}).bodies.size(), 2U);
}

TEST(Inventory, FollowsAReferenceThatIsFree)
{
    sdkDocument document;
    document.add_shape(kit_cube(10).Moved(shifted(7)), "Cube");
    ASSERT_TRUE(XCAFDoc_ShapeTool::IsReference(document.free_shapes().First()));
    auto const inventory = take(document);
    ASSERT_EQ(inventory.bodies.size(), 1U);
    EXPECT_LT(inventory.bodies[0].measure.centroid.Distance(gp_Pnt(12, 5, 5)), 1e-9);
    EXPECT_EQ(inventory.assemblies, 0);
    EXPECT_EQ(inventory.instances, 0);
}

TEST(Inventory, KnowsAllNamesAroundABody)
{
    Placed placed;
    sdkDocument::set_name(placed.instance, "Left");
    auto const body = take(placed.document).bodies.at(0);
    EXPECT_EQ(body.part, "Cube");
    EXPECT_EQ(body.names, (std::set<std::string>{"Cube", "Left", "Assembly"}));
}

TEST(Inventory, LetsTheColourOfAPlaceHideThatOfItsPart)
{
    Placed placed;
    auto const colour = [&] {
        auto const colours = take(placed.document).bodies.at(0).colours;
        return colours.size() == 1 ? colours.begin()->first : "several";
    };
    EXPECT_EQ(colour(), "");
    placed.document.colours()->SetColor(placed.assembly, kit_red(), XCAFDoc_ColorSurf);
    EXPECT_EQ(colour(), red);
    placed.document.colours()->SetColor(placed.part, kit_blue(), XCAFDoc_ColorGen);
    EXPECT_EQ(colour(), blue);
    placed.document.colours()->SetColor(placed.instance, kit_red(), XCAFDoc_ColorSurf);
    EXPECT_EQ(colour(), red);
}

TEST(Inventory, SharesTheAreaOutOverTheColoursOfFaces)
{
    Placed placed;
    placed.document.colours()->SetColor(placed.part, kit_red(), XCAFDoc_ColorSurf);
    placed.document.colours()->SetColor(face_of(placed.document, placed.part), kit_blue(), XCAFDoc_ColorSurf);
    auto const colours = take(placed.document).bodies.at(0).colours;
    ASSERT_EQ(colours.size(), 2U);
    EXPECT_NEAR(colours.at(red), 500, 1e-9);
    EXPECT_NEAR(colours.at(blue), 100, 1e-9);
}

TEST(Inventory, KnowsTheColourOfASolidInsideAPart)
{
    sdkDocument document;
    auto const left = kit_cube(10);
    auto const right = kit_cube(10).Moved(shifted(20));
    auto const part = document.add_shape(kit_compound({left, right}), "Two");
    document.colours()->SetColor(part, kit_red(), XCAFDoc_ColorSurf);
    document.colours()->SetColor(document.shapes()->AddSubShape(part, right), kit_blue(), XCAFDoc_ColorSurf);
    auto const bodies = take(document).bodies;
    ASSERT_EQ(bodies.size(), 2U);
    EXPECT_EQ(bodies[0].colours.begin()->first, red);
    EXPECT_EQ(bodies[1].colours.begin()->first, blue);
}

TEST(Inventory, GathersTheLayersOfPlacesPartsAndFaces)
{
    Placed placed;
    auto const & layers = placed.document.layers();
    layers->SetLayer(placed.assembly, "A");
    layers->SetLayer(placed.instance, "B");
    layers->SetLayer(placed.part, "C");
    layers->SetLayer(face_of(placed.document, placed.part), "D");
    EXPECT_EQ(take(placed.document).bodies.at(0).layers, (std::set<std::string>{"A", "B", "C", "D"}));
}

TEST(Inventory, KnowsWhatIsHiddenWhereverThatStands)
{
    for (auto const member : {&Placed::part, &Placed::assembly, &Placed::instance}) {
        Placed placed;
        EXPECT_FALSE(take(placed.document).bodies.at(0).hidden);
        sdk_hide(placed.document, placed.*member);
        EXPECT_TRUE(take(placed.document).bodies.at(0).hidden);
    }
}

TEST(Inventory, HidesWhatLiesOnHiddenLayersOnly)
{
    Placed placed;
    auto const & layers = placed.document.layers();
    layers->SetLayer(placed.part, "Hidden");
    TDF_Label layer;
    ASSERT_TRUE(layers->FindLayer("Hidden", layer));
    layers->SetVisibility(layer, Standard_False);
    EXPECT_TRUE(take(placed.document).bodies.at(0).hidden);
    layers->SetLayer(placed.part, "Shown");
    EXPECT_FALSE(take(placed.document).bodies.at(0).hidden);
}

TEST(Inventory, IsTheSameWithSeveralThreads)
{
    sdkDocument document;
    for (int size = 1; size <= 40; ++size) {
        document.add_shape(kit_cube(size), "Cube");
    }
    auto const alone = sdk_take_inventory(document, {.threads = 1});
    auto const together = sdk_take_inventory(document, {.threads = 4});
    ASSERT_EQ(alone.bodies.size(), 40U);
    ASSERT_EQ(together.bodies.size(), 40U);
    for (std::size_t at = 0; at < 40; ++at) {
        EXPECT_EQ(alone.bodies[at].measure.volume, together.bodies[at].measure.volume);
        EXPECT_EQ(alone.bodies[at].measure.area, together.bodies[at].measure.area);
    }
}

TEST(Inventory, CanBeCancelled)
{
    sdkDocument document;
    for (int size = 1; size <= 40; ++size) {
        document.add_shape(kit_cube(size), "Cube");
    }
    Handle(kitIndicator) const indicator = new kitIndicator;
    EXPECT_FALSE(sdk_take_inventory(document, {}, indicator->Start()).cancelled);
    indicator->cancelled = true;
    EXPECT_TRUE(sdk_take_inventory(document, {}, indicator->Start()).cancelled);
}

TEST(Inventory, OnlyCountsWhenOnlyCountsAreWanted)
{
    auto const inventory = inventory_of({{"Cube", kit_cube(10)}}, sdkMeasureLevel::counts);
    ASSERT_EQ(inventory.bodies.size(), 1U);
    EXPECT_EQ(inventory.bodies[0].measure.faces.size(), 6U);
    EXPECT_EQ(inventory.volume(), 0);
}

TEST(Inventory, IsTheSameWhateverTheNumberOfThreads)
{
    sdkDocument document;
    for (int number = 0; number < 40; ++number) {
        document.add_shape(kit_cube(1 + number), "Cube " + std::to_string(number));
    }
    auto const alone = sdk_take_inventory(document, {.threads = 1});
    auto const shared = sdk_take_inventory(document, {.threads = 3});
    ASSERT_EQ(alone.bodies.size(), 40U);
    ASSERT_EQ(shared.bodies.size(), 40U);
    for (std::size_t at = 0; at < 40; ++at) {
        EXPECT_EQ(alone.bodies[at].measure.volume, shared.bodies[at].measure.volume);
        EXPECT_EQ(alone.bodies[at].measure.faces.size(), shared.bodies[at].measure.faces.size());
        EXPECT_EQ(alone.bodies[at].part, shared.bodies[at].part);
    }
}
