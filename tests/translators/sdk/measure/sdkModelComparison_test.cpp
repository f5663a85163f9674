#include "sdk/measure/sdkModelComparison.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Model {
    explicit Model(std::vector<std::pair<TopoDS_Shape, std::string>> const & parts = {},
                   sdkMeasureLevel level = sdkMeasureLevel::full)
    {
        for (auto const & [shape, name] : parts) {
            document.add_shape(shape, name);
        }
        take(level);
    }

    void take(sdkMeasureLevel level = sdkMeasureLevel::full)
    {
        inventory = sdk_take_inventory(document, {.level = level});
    }

    sdkDocument document;
    sdkInventory inventory;
};

TopoDS_Shape moved(TopoDS_Shape const & shape, double x)
{
    gp_Trsf place;
    place.SetTranslation(gp_Vec(x, 0, 0));
    return BRepBuilderAPI_Transform(shape, place, Standard_True).Shape();
}

sdkModelComparison compare(Model const & a, Model const & b, sdkModelAttributes const & attributes = {})
{
    return sdk_compare_models(a.inventory, b.inventory, {}, attributes);
}

// The kinds of all findings, those of notes in brackets.
std::vector<std::string> kinds(sdkModelComparison const & comparison)
{
    std::vector<std::string> result;
    for (auto const & finding : comparison.findings) {
        EXPECT_NE(finding.weight, sdkWeight::loss) << "nothing is lost between two models";
        EXPECT_TRUE(finding.text.fits()) << finding.text.key();
        result.push_back(finding.weight == sdkWeight::note ? "(" + finding.kind + ")" : finding.kind);
    }
    return result;
}

using Kinds = std::vector<std::string>;

} // namespace

TEST(ModelComparison, FindsTheSameBodiesInAnyOrder)
{
    Model const a({{kit_cube(10), "cube"}, {moved(kit_hollow_cube(), 50), "hollow"}, {kit_wire(), "wire"}});
    Model const b({{kit_wire(), "wire"}, {moved(kit_hollow_cube(), 50), "hollow"}, {kit_cube(10), "cube"}});
    auto const comparison = compare(a, b);
    EXPECT_EQ(kinds(comparison), Kinds{});
    ASSERT_EQ(comparison.bodies.size(), 4U);
    for (auto const & pair : comparison.bodies) {
        EXPECT_TRUE(pair.same);
        ASSERT_TRUE(pair.a && pair.b);
        EXPECT_EQ(pair.a->part, pair.b->part);
    }
}

TEST(ModelComparison, PairsWhatWasMovedHoweverFar)
{
    Model const a({{kit_cube(10), ""}});
    Model const b({{moved(kit_cube(10), 1.0e5), ""}});
    auto const comparison = compare(a, b);
    ASSERT_EQ(kinds(comparison), Kinds{"centroid"});
    EXPECT_NEAR(*comparison.findings[0].output, 1.0e5, 1e-6);
    ASSERT_EQ(comparison.bodies.size(), 1U);
    EXPECT_FALSE(comparison.bodies[0].same);
}

TEST(ModelComparison, TellsWhatIsInOneModelOnly)
{
    Model const a({{kit_cube(10), "cube"}, {moved(kit_cube(3), 100), "small"}});
    Model const b({{kit_cube(10), "cube"}});
    auto const in_a = compare(a, b);
    ASSERT_EQ(kinds(in_a), Kinds{"missing-solid"});
    EXPECT_EQ(in_a.findings[0].text.formatted(), "small at (101.5, 1.5, 1.5) (solid) is in A and not in B");
    auto const in_b = compare(b, a);
    ASSERT_EQ(kinds(in_b), Kinds{"extra-solid"});
    EXPECT_EQ(in_b.findings[0].text.formatted(), "small at (101.5, 1.5, 1.5) (solid) is in B and not in A");
    ASSERT_EQ(in_b.bodies.size(), 2U);
    EXPECT_EQ(in_b.bodies[1].a, nullptr);
    EXPECT_FALSE(in_b.bodies[1].same);
}

TEST(ModelComparison, SeesASolidThatFellApartFromBothSides)
{
    std::vector<std::pair<TopoDS_Shape, std::string>> loose;
    for (auto const & face : kit_loose_faces(kit_cube(10))) {
        loose.emplace_back(face, "");
    }
    Model const solid({{kit_cube(10), "cube"}});
    Model const faces(loose);
    EXPECT_EQ(kinds(compare(solid, faces)), Kinds{"solid-open"});
    auto const back = kinds(compare(faces, solid));
    EXPECT_EQ(std::count(back.begin(), back.end(), "solids"), 1) << "the other way round it differs as well";
}

TEST(ModelComparison, TakesOtherFacesForADifferenceInOneFormatOnly)
{
    // Six faces against a cube with one of them in two halves.
    auto const half = BRepPrimAPI_MakeCylinder(5, 10).Shape();
    Model const whole({{half, "a"}});
    Model divided({{half, "a"}});
    divided.inventory.bodies[0].measure.faces.push_back(divided.inventory.bodies[0].measure.faces[0]);
    EXPECT_EQ(kinds(compare(whole, divided)), Kinds{"(faces)"});
    EXPECT_TRUE(compare(whole, divided).bodies[0].same);
    EXPECT_EQ(kinds(compare(divided, whole, {.same_format = true})), Kinds{"faces"});
}

TEST(ModelComparison, TakesEdgesOffTheirSurfacesForAFaultOfTheSecondModelOnly)
{
    Model const good({{kit_cube(10), "cube"}});
    Model bad({{kit_cube(10), "cube"}});
    bad.inventory.bodies[0].measure.edge_deviation = 3;
    EXPECT_EQ(kinds(compare(good, bad)), Kinds{"edge-deviation"});
    EXPECT_EQ(kinds(compare(bad, good)), Kinds{"(edge-deviation)"}) << "what mends its source is the same";
    EXPECT_TRUE(compare(bad, good).bodies[0].same);
    EXPECT_EQ(kinds(compare(bad, bad)), Kinds{});
    bad.inventory.bodies[0].measure.edge_deviation = std::nan("");
    EXPECT_EQ(kinds(compare(good, bad)), Kinds{"edge-deviation"});
    EXPECT_EQ(kinds(compare(bad, good)), Kinds{"edge-deviation"}) << "what cannot be measured is told";
}

TEST(ModelComparison, ComparesNames)
{
    Model const a({{kit_cube(10), "Gehäuse"}});
    Model const ascii({{kit_cube(10), "Geh_use"}});
    Model const other({{kit_cube(10), "lid"}});
    Model const file({{kit_cube(10), "lid-7"}});
    EXPECT_EQ(kinds(compare(a, ascii)), Kinds{});
    EXPECT_EQ(kinds(compare(ascii, a)), Kinds{});
    EXPECT_EQ(kinds(compare(a, other)), Kinds{"name"});
    EXPECT_EQ(kinds(compare(a, other, {.names = false})), Kinds{});
    EXPECT_EQ(kinds(compare(other, file, {.file_a = "lid", .file_b = "lid-7"})), Kinds{})
        << "each is called after its file";
    EXPECT_EQ(kinds(compare(a, file, {.file_a = "x", .file_b = "lid-7"})), Kinds{"name"});
}

TEST(ModelComparison, ComparesColoursLayersAndStructure)
{
    Model a;
    kit_add_assembly(a.document);
    a.take();
    Model b;
    kit_add_assembly(b.document);
    b.take();
    EXPECT_EQ(kinds(compare(a, b)), Kinds{});
    for (auto & body : b.inventory.bodies) {
        body.colours = {{"#00ff00ff", body.measure.area}};
        body.layers = {"9"};
    }
    b.inventory.instances = 7;
    EXPECT_EQ(kinds(compare(a, b)),
              (Kinds{"colour", "layer", "colour", "layer", "colour", "layer", "instances"}));
    EXPECT_EQ(kinds(compare(a, b, {.colours = false, .layers = false, .structure = false})), Kinds{});
    for (auto & body : b.inventory.bodies) {
        body.colours.clear();
    }
    EXPECT_EQ(kinds(compare(a, b, {.layers = false, .structure = false})), Kinds{})
        << "the format may have none";
    EXPECT_EQ(kinds(compare(a, b, {.layers = false, .structure = false, .same_format = true})).size(), 3U);
}

TEST(ModelComparison, ComparesCounts)
{
    auto const counts = sdkMeasureLevel::counts;
    Model const a({{kit_cube(10), "cube"}, {kit_wire(), "wire"}}, counts);
    Model const b({{kit_cube(20), "box"}, {kit_wire(), "wire"}}, counts);
    Model const c({{kit_cube(10), "cube"}, {kit_cube(20), "cube"}}, counts);
    EXPECT_EQ(kinds(compare(a, b, {.names = false})), Kinds{});
    EXPECT_EQ(kinds(compare(a, b)), (Kinds{"name", "name"}));
    EXPECT_EQ(kinds(compare(a, c)), (Kinds{"solids", "(faces)", "(curves)", "name"}));
    EXPECT_EQ(kinds(compare(a, c, {.names = false, .same_format = true})),
              (Kinds{"solids", "faces", "curves"}));
}

TEST(ModelComparison, KnowsTrianglesFromSurfaces)
{
    Model const solid({{kit_cube(10), "cube"}});
    Model const mesh({{kit_facet_cube(), "cube"}});
    Model const both({{kit_cube(10), "cube"}, {kit_facet_cube(), "cube"}});
    EXPECT_TRUE(sdk_triangles_against_surfaces(solid.inventory, mesh.inventory));
    EXPECT_TRUE(sdk_triangles_against_surfaces(mesh.inventory, solid.inventory));
    EXPECT_FALSE(sdk_triangles_against_surfaces(mesh.inventory, mesh.inventory));
    EXPECT_FALSE(sdk_triangles_against_surfaces(both.inventory, mesh.inventory));
    EXPECT_EQ(kinds(compare(mesh, mesh)), Kinds{});
    EXPECT_EQ(kinds(compare(both, solid)), Kinds{"missing-mesh"});
}

TEST(ModelComparison, TellsTrianglesThatLookToTheOtherSide)
{
    Model const cube({{kit_facet_cube_turned(0), "cube"}});
    Model const one({{kit_facet_cube_turned(1), "cube"}});
    Model const all({{kit_facet_cube_turned(12), "cube"}});
    ASSERT_EQ(kinds(compare(cube, one)), Kinds{"unmatched-edges"});
    EXPECT_EQ(compare(cube, one).findings[0].source, 0);
    EXPECT_EQ(compare(cube, one).findings[0].output, 6);
    EXPECT_FALSE(compare(cube, one).bodies[0].same);
    EXPECT_EQ(kinds(compare(one, cube)), Kinds{"unmatched-edges"});
    EXPECT_EQ(kinds(compare(cube, all)), (Kinds{"turned-body", "turned-faces"}));
    EXPECT_EQ(kinds(compare(one, one)), Kinds{});
    EXPECT_EQ(kinds(compare(all, all)), Kinds{});
}
