#include "measureBodies.h"

#include "sdk/geometry/sdkTessellation.h"
#include "sdk/measure/sdkTriangleByTriangle.h"
#include "translators/kit/kitParts.h"

#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

#include <functional>

namespace {

using Change = std::function<void(std::vector<gp_Pnt> & points, std::vector<Poly_Triangle> & triangles)>;

// A ring of some hundred triangles, in single precision.
TopoDS_Shape ring(Change const & change)
{
    auto const shape = BRepPrimAPI_MakeTorus(20, 5).Shape();
    sdk_tessellate(shape, {.linear = 0.1, .angular = 0.5});
    TopLoc_Location location;
    auto const face = TopoDS::Face(TopExp_Explorer(shape, TopAbs_FACE).Current());
    Handle(Poly_Triangulation) const found = BRep_Tool::Triangulation(face, location);
    std::vector<gp_Pnt> points;
    std::vector<Poly_Triangle> triangles;
    for (int at = 1; at <= found->NbNodes(); ++at) {
        points.push_back(found->Node(at));
    }
    for (int at = 1; at <= found->NbTriangles(); ++at) {
        triangles.push_back(found->Triangle(at));
    }
    change(points, triangles);
    return kit_mesh(points, triangles);
}

void nothing(std::vector<gp_Pnt> &, std::vector<Poly_Triangle> &) {}

std::vector<sdkFinding> compare(Change const & change)
{
    auto options = everything();
    options.promise.holds.surfaces = false;
    options.promise.deflection = 0.1;
    auto const findings =
        sdk_compare(inventory_of({{"Ring", ring(nothing)}}), inventory_of({{"Ring", ring(change)}}), options);
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

} // namespace

TEST(TriangleByTriangle, MindsNeitherTheOrderNorRounding)
{
    EXPECT_EQ(kinds(compare(nothing)), Kinds());
    EXPECT_EQ(kinds(compare([](auto & points, auto & triangles) {
                  std::reverse(triangles.begin(), triangles.end());
                  for (auto & point : points) {
                      point.SetCoord(static_cast<float>(point.X()), static_cast<float>(point.Y()),
                                     static_cast<float>(point.Z()));
                  }
              })),
              Kinds());
}

TEST(TriangleByTriangle, FindsACornerThatMoved)
{
    auto const findings = compare([](auto & points, auto &) { points[20].ChangeCoord().Add({0, 0, 0.001}); });
    ASSERT_EQ(kinds(findings), (Kinds{"missing-triangle"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_GE(*findings[0].source - *findings[0].output, 3);
}

TEST(TriangleByTriangle, FindsATriangleThatIsGoneOrNewOrTurned)
{
    auto const gone = compare([](auto &, auto & triangles) { triangles.pop_back(); });
    ASSERT_NE(find(gone, "missing-triangle"), nullptr);
    EXPECT_EQ(find(gone, "missing-triangle")->weight, sdkWeight::loss);
    auto const again = compare([](auto &, auto & triangles) { triangles.push_back(triangles[5]); });
    ASSERT_NE(find(again, "extra-triangle"), nullptr);
    auto const turned = compare([](auto &, auto & triangles) {
        int a = 0;
        int b = 0;
        int c = 0;
        triangles[5].Get(a, b, c);
        triangles[5] = Poly_Triangle(a, c, b);
    });
    ASSERT_NE(find(turned, "missing-triangle"), nullptr);
    EXPECT_EQ(find(turned, "missing-triangle")->weight, sdkWeight::difference);
}

TEST(TriangleByTriangle, LetsTrianglesWithoutAreaGo)
{
    std::vector<sdkFinding> findings;
    auto const with_flat = inventory_of(
        {{"Ring", ring([](auto &, auto & triangles) { triangles.push_back(Poly_Triangle(7, 7, 9)); })}});
    sdk_compare_triangle_by_triangle(with_flat, inventory_of({{"Ring", ring(nothing)}}), findings);
    EXPECT_TRUE(findings.empty());
}

TEST(TriangleByTriangle, TakesPointsThatLieCloseTogetherForEachOtherOnBothSides)
{
    // In the source the second point is taken for the first, in the output for the third.
    double const step = 6.4e-5; // about what rounding allows
    auto const row = [step](std::vector<gp_Pnt> & points, std::vector<Poly_Triangle> & triangles) {
        for (double const place : {0., 0.9, 1.7}) {
            int const first = static_cast<int>(points.size()) + 1;
            points.emplace_back(place * step, 0, 0);
            points.emplace_back(10, 20 + place, 0);
            points.emplace_back(10, 0, 20 + place);
            triangles.emplace_back(first, first + 1, first + 2);
        }
    };
    auto options = everything();
    options.promise.holds.surfaces = false;
    options.promise.deflection = 0.1;
    EXPECT_TRUE(sdk_compare(inventory_of({{"Ring", ring(row)}}), inventory_of({{"Ring", ring(row)}}), options)
                    .empty());
}
