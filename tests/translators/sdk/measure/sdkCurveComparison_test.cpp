#include "measureBodies.h"

#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <gp_Circ.hxx>

#include <gtest/gtest.h>

namespace {

TopoDS_Shape line(gp_Pnt const & from, gp_Pnt const & to)
{
    return BRepBuilderAPI_MakeEdge(from, to).Shape();
}

TopoDS_Shape point(double x)
{
    return BRepBuilderAPI_MakeVertex(gp_Pnt(x, 0, 0)).Shape();
}

std::vector<sdkFinding> compare(std::vector<TopoDS_Shape> const & source,
                                std::vector<TopoDS_Shape> const & output)
{
    auto const findings = sdk_compare(inventory_of({{"Wire", kit_compound(source)}}),
                                      inventory_of({{"Wire", kit_compound(output)}}), everything());
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

gp_Pnt const left(0, 0, 0);
gp_Pnt const middle(4, 0, 0);
gp_Pnt const right(10, 0, 0);

} // namespace

TEST(CurveComparison, MayFindThemDividedOrJoined)
{
    auto const whole = line(left, right);
    auto const pieces = std::vector{line(left, middle), line(middle, right)};
    auto const circle = BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(gp_Pnt(90, 0, 0), gp::DZ()), 5)).Shape();
    EXPECT_TRUE(compare({whole, circle}, {pieces[0], circle, pieces[1]}).empty());
    EXPECT_TRUE(compare({pieces[0], circle, pieces[1]}, {circle, whole}).empty());
}

TEST(CurveComparison, KnowsALostCurveBesideADividedOne)
{
    auto const lost = line(gp_Pnt(0, 50, 0), gp_Pnt(10, 50, 0));
    auto const findings = compare({line(left, right), lost}, {line(left, middle), line(middle, right)});
    ASSERT_EQ(kinds(findings), (Kinds{"missing-curve"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::loss);
    EXPECT_EQ(findings[0].place, "(5, 50, 0)");
}

TEST(CurveComparison, KnowsALostPiece)
{
    auto const findings = compare({line(left, right)}, {line(left, middle)});
    ASSERT_EQ(kinds(findings), (Kinds{"length"}));
    EXPECT_EQ(findings[0].source, 10);
    EXPECT_EQ(findings[0].output, 4);
}

TEST(CurveComparison, IsNotDeceivedByTheSameLengthElsewhere)
{
    EXPECT_EQ(kinds(compare({line(left, right)}, {line(gp_Pnt(0, 1, 0), gp_Pnt(10, 1, 0))})),
              (Kinds{"centroid"}));
    EXPECT_EQ(kinds(compare({line(left, right)}, {line(gp_Pnt(0, 800, 0), gp_Pnt(4, 800, 0)),
                                                  line(gp_Pnt(4, 800, 0), gp_Pnt(10, 800, 0))})),
              (Kinds{"extra-curve", "extra-curve", "missing-curve"}));
}

TEST(CurveComparison, KnowsACircleThatWasTilted)
{
    auto const flat = BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(left, gp::DZ()), 5)).Shape();
    auto const tilted = BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(left, gp::DX()), 5)).Shape();
    EXPECT_TRUE(compare({flat}, {flat}).empty());
    EXPECT_EQ(kinds(compare({flat}, {tilted})), (Kinds{"centroid"}));
}

TEST(CurveComparison, MayFindCrossingCurvesDividedWhereTheyCross)
{
    gp_Pnt const a(0, 0, 0);
    gp_Pnt const b(10, 10, 0);
    gp_Pnt const c(0, 10, 0);
    gp_Pnt const d(10, 0, 0);
    gp_Pnt const x(5, 5, 0);
    EXPECT_TRUE(compare({line(a, b), line(c, d)}, {line(a, x), line(x, b), line(c, x), line(x, d)}).empty());
}

TEST(CurveComparison, IsNotDeceivedByOtherCurvesOfTheSameLengthAndCentroid)
{
    // Three lines along x become three along y, about the same point.
    auto const along = [](gp_Dir const & way) {
        std::vector<TopoDS_Shape> lines;
        for (double const height : {-1, 0, 1}) {
            gp_XYZ const middle(0, 0, height);
            lines.push_back(line(middle - way.XYZ() * 5, middle + way.XYZ() * 5));
        }
        return lines;
    };
    EXPECT_TRUE(compare(along(gp::DX()), along(-gp::DX())).empty());
    EXPECT_FALSE(compare(along(gp::DX()), along(gp::DY())).empty());
    EXPECT_FALSE(compare({line(gp_Pnt(-5, 0, 0), gp_Pnt(5, 0, 0))},
                         {line(gp_Pnt(0, -5, 0), gp_Pnt(0, 0, 0)), line(gp_Pnt(0, 0, 0), gp_Pnt(0, 5, 0))})
                     .empty());
}

TEST(CurveComparison, KeepsTheAttributesOfDividedCurves)
{
    auto const with_colour = [](std::vector<TopoDS_Shape> const & shapes, char const * colour) {
        auto inventory = inventory_of({{"Wire", kit_compound(shapes)}});
        for (auto & body : inventory.bodies) {
            body.colours = {{colour, body.measure.length}};
        }
        return inventory;
    };
    std::vector const whole{line(left, right)};
    std::vector const pieces{line(left, middle), line(middle, right)};
    auto const red = with_colour(whole, "#ff0000ff");
    EXPECT_TRUE(sdk_compare(red, with_colour(pieces, "#ff0000ff"), everything()).empty());
    EXPECT_EQ(kinds(sdk_compare(red, with_colour(pieces, "#0000ffff"), everything())), (Kinds{"colour"}));
}

TEST(CurveComparison, FindsPointsWhereTheyAre)
{
    EXPECT_TRUE(compare({point(1), point(2)}, {point(2), point(1)}).empty());
    EXPECT_EQ(kinds(compare({point(1), point(200)}, {point(1)})), (Kinds{"missing-point"}));
    EXPECT_EQ(kinds(compare({point(1)}, {point(1), point(200)})), (Kinds{"extra-point"}));
    EXPECT_EQ(kinds(compare({point(1), point(1)}, {point(1)})), (Kinds{"coincident"}));
}
