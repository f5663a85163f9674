#include "measureBodies.h"

#include "sdk/measure/sdkTotalsComparison.h"

#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeCone.hxx>

#include <gtest/gtest.h>

#include <limits>

namespace {

// Of one body with that volume and area.
sdkInventory of(sdkBodyKind kind, double volume, double area)
{
    sdkInventory inventory;
    auto & body = inventory.bodies.emplace_back();
    body.kind = kind;
    body.measure.volume = volume;
    body.measure.area = area;
    return inventory;
}

std::vector<sdkFinding> compare(sdkInventory const & source, sdkInventory const & output, double deflection)
{
    sdkPromise promise;
    promise.deflection = deflection;
    std::vector<sdkFinding> findings;
    sdk_compare_totals(source, output, promise, findings);
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

} // namespace

TEST(TotalsComparison, AllowsWhatTheDeflectionLeavesOut)
{
    auto const source = of(sdkBodyKind::solid, 1000, 600);
    EXPECT_TRUE(compare(source, of(sdkBodyKind::mesh, 950, 590), 0.1).empty());
    EXPECT_EQ(kinds(compare(source, of(sdkBodyKind::mesh, 930, 590), 0.1)), (Kinds{"volume"}));
    EXPECT_EQ(kinds(compare(source, of(sdkBodyKind::mesh, 1000, 530), 0.1)), (Kinds{"area"}));
}

TEST(TotalsComparison, AllowsOnlyRoundingWithoutADeflection)
{
    auto const source = of(sdkBodyKind::mesh, 1000, 600);
    EXPECT_TRUE(compare(source, of(sdkBodyKind::solid, 1000.005, 600.005), 0).empty());
    EXPECT_EQ(kinds(compare(source, of(sdkBodyKind::solid, 1000.02, 600.02), 0)), (Kinds{"area", "volume"}));
}

TEST(TotalsComparison, TakesLessAreaForALossAndMoreForADifference)
{
    auto const less = of(sdkBodyKind::face, 0, 100);
    auto const more = of(sdkBodyKind::face, 0, 200);
    EXPECT_EQ(compare(more, less, 0.1).at(0).weight, sdkWeight::loss);
    EXPECT_EQ(compare(less, more, 0.1).at(0).weight, sdkWeight::difference);
}

TEST(TotalsComparison, LooksForNoVolumeInWhatIsOpen)
{
    EXPECT_TRUE(compare(of(sdkBodyKind::shell, 0, 600), of(sdkBodyKind::mesh, 333, 600), 0.1).empty());
}

TEST(TotalsComparison, NeverTakesWhatIsNoNumberForTheSame)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    auto const source = of(sdkBodyKind::solid, 1000, 600);
    EXPECT_EQ(kinds(compare(source, of(sdkBodyKind::mesh, nan, 600), 0.1)), (Kinds{"volume"}));
    EXPECT_NE(find(compare(source, of(sdkBodyKind::mesh, 1000, nan), 0.1), "area"), nullptr);
}

TEST(TotalsComparison, TellsTrianglesThatMovedHoweverCoarseTheyMayBe)
{
    auto const source = inventory_of({{"A", kit_facet_cube()}});
    auto const moved = inventory_of({{"A", kit_facet_cube().Moved(shifted(0.05))}});
    auto const findings = compare(source, moved, 0.1);
    ASSERT_EQ(kinds(findings), (Kinds{"centroid"})) << "triangles of triangles only round";
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_NEAR(*findings[0].output, 0.05, 1e-9);
    EXPECT_EQ(kinds(compare(source, moved, 0)), (Kinds{"centroid"}));
    EXPECT_TRUE(compare(source, inventory_of({{"A", kit_facet_cube()}}), 0).empty());
}

TEST(TotalsComparison, TakesTheCentroidOfTheAreaForSolidsToo)
{
    // A needle on a plate: the centroids of its volume and its area lie apart.
    auto const cone = BRepPrimAPI_MakeCone(10, 1, 40).Solid();
    auto const solid = inventory_of({{"Cone", cone}});
    auto sheet = solid;
    sheet.bodies[0].kind = sdkBodyKind::mesh;
    gp_XYZ moment;
    for (auto const & face : solid.bodies[0].measure.faces) {
        moment += face.centroid.XYZ() * face.area;
    }
    sheet.bodies[0].measure.centroid = moment / solid.bodies[0].measure.area;
    ASSERT_GT(sheet.bodies[0].measure.centroid.Distance(solid.bodies[0].measure.centroid), 0.5);
    EXPECT_TRUE(compare(solid, sheet, 0).empty());
    EXPECT_TRUE(compare(sheet, solid, 0).empty());
}

TEST(TotalsComparison, TellsTrianglesThatWereTurnedAboutTheirCentroid)
{
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(gp_Pnt(15, 5, 5), gp::DZ()), 0.02);
    auto const two = kit_compound({kit_facet_cube(), kit_facet_cube().Moved(shifted(20))});
    auto const findings =
        compare(inventory_of({{"A", two}}), inventory_of({{"A", two.Moved(TopLoc_Location(turn))}}), 0.1);
    EXPECT_EQ(kinds(findings), (Kinds{"shape"}));
}

TEST(TotalsComparison, TellsSurfacesWhoseTrianglesLieElsewhere)
{
    auto const cube = inventory_of({{"A", kit_cube(10)}});
    EXPECT_TRUE(compare(cube, inventory_of({{"A", kit_facet_cube()}}), 0.1).empty());
    EXPECT_EQ(kinds(compare(cube, inventory_of({{"A", kit_facet_cube().Moved(shifted(2))}}), 0.1)),
              (Kinds{"centroid"}));
}

TEST(TotalsComparison, CountsTheTrianglesThatTheWriterHasWritten)
{
    auto const counted = [](std::int64_t promised) {
        sdkPromise promise;
        promise.triangles = promised;
        std::vector<sdkFinding> findings;
        sdk_compare_triangle_count(inventory_of({{"A", kit_facet_cube()}}, sdkMeasureLevel::counts), promise,
                                   findings);
        EXPECT_TRUE(all_fit(findings));
        return findings;
    };
    EXPECT_TRUE(counted(12).empty());
    EXPECT_TRUE(counted(-1).empty());
    ASSERT_EQ(kinds(counted(13)), (Kinds{"triangles"}));
    EXPECT_EQ(counted(13)[0].weight, sdkWeight::loss);
    ASSERT_EQ(kinds(counted(0)), (Kinds{"triangles"}));
    EXPECT_EQ(counted(0)[0].weight, sdkWeight::difference);
}

TEST(TotalsComparison, OfPolylinesAllowsChordsToBeALittleShorter)
{
    auto const of_length = [](double length) {
        sdkInventory inventory;
        inventory.bodies.emplace_back().measure.length = length;
        return inventory;
    };
    std::vector<sdkFinding> findings;
    sdk_compare_polylines(of_length(100), of_length(99), findings);
    EXPECT_TRUE(findings.empty());
    sdk_compare_polylines(of_length(100), of_length(97), findings);
    sdk_compare_polylines(of_length(100), of_length(103), findings);
    sdk_compare_polylines(of_length(100), of_length(std::numeric_limits<double>::quiet_NaN()), findings);
    ASSERT_EQ(kinds(findings), Kinds(3, "length"));
    EXPECT_EQ(findings[0].weight, sdkWeight::loss);
    EXPECT_EQ(findings[1].weight, sdkWeight::difference);
}

TEST(TotalsComparison, CountsTheFacesOfAllBodies)
{
    auto inventory = of(sdkBodyKind::solid, 1, 1);
    inventory.bodies[0].measure.faces.resize(6);
    inventory.bodies.push_back(inventory.bodies[0]);
    EXPECT_EQ(sdk_face_count(inventory), 12);
}
