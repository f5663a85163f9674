#include "measureBodies.h"

#include "sdk/geometry/sdkTessellation.h"
#include "sdk/measure/sdkMeshCorners.h"
#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GeomAPI_PointsToBSplineSurface.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Poly_Triangulation.hxx>
#include <TColgp_Array2OfPnt.hxx>
#include <TopoDS.hxx>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace {

constexpr double deflection = 0.1;

using Change = std::function<gp_Pnt(gp_Pnt const &)>;

// The triangles of a shape as one face without a surface, their corners in single precision.
TopoDS_Shape triangles_of(TopoDS_Shape const & shape, Change const & change)
{
    sdk_tessellate(shape, {.linear = deflection, .angular = 0.5});
    std::vector<gp_Pnt> points;
    std::vector<Poly_Triangle> triangles;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(TopoDS::Face(one.Current()), location);
        int const base = static_cast<int>(points.size());
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            auto const point = change(mesh->Node(node).Transformed(location.Transformation()));
            points.emplace_back(static_cast<float>(point.X()), static_cast<float>(point.Y()),
                                static_cast<float>(point.Z()));
        }
        for (int number = 1; number <= mesh->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            if (one.Current().Orientation() == TopAbs_REVERSED) {
                std::swap(b, c);
            }
            triangles.emplace_back(base + a, base + b, base + c);
        }
    }
    return kit_mesh(points, triangles);
}

std::vector<sdkFinding> compare(TopoDS_Shape const & shape, Change const & change)
{
    auto options = everything();
    options.promise.holds.surfaces = false;
    options.promise.deflection = deflection;
    auto const findings = sdk_compare(inventory_of({{"part", shape}}),
                                      inventory_of({{"part", triangles_of(shape, change)}}), options);
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

gp_Pnt same(gp_Pnt const & point)
{
    return point;
}

Change shifted_where(std::function<bool(gp_Pnt const &)> const & where, gp_Vec const & shift)
{
    return [=](gp_Pnt const & point) { return where(point) ? point.Translated(shift) : point; };
}

// A sheet in waves and the body under it, whose sides are swept along its edges.
TopoDS_Shape swept()
{
    constexpr int points = 10;
    TColgp_Array2OfPnt grid(1, points, 1, points);
    for (int i = 0; i < points; ++i) {
        for (int j = 0; j < points; ++j) {
            grid(i + 1, j + 1) = gp_Pnt(5 * i, 5 * j, 3 * std::sin(i) * std::cos(j));
        }
    }
    GeomAPI_PointsToBSplineSurface sheet;
    sheet.Interpolate(grid);
    auto const face = BRepBuilderAPI_MakeFace(sheet.Surface(), 1.0e-7).Face();
    return BRepPrimAPI_MakePrism(face, gp_Vec(0, 0, 20)).Shape();
}

std::vector<TopoDS_Shape> bodies()
{
    auto const cylinder = BRepPrimAPI_MakeCylinder(10, 20).Shape();
    return {kit_cube(10),
            cylinder,
            BRepPrimAPI_MakeCone(10, 4, 20).Shape(),
            BRepPrimAPI_MakeCone(10, 0, 20).Shape(),
            BRepPrimAPI_MakeSphere(10).Shape(),
            BRepPrimAPI_MakeTorus(20, 5).Shape(),
            swept(),
            BRepBuilderAPI_NurbsConvert(cylinder, Standard_True).Shape(),
            BRepBuilderAPI_NurbsConvert(BRepPrimAPI_MakeTorus(20, 5).Shape(), Standard_True).Shape()};
}

} // namespace

TEST(MeshCorners, OfAnHonestMesherLieOnTheSurfaces)
{
    for (auto const & body : bodies()) {
        EXPECT_EQ(kinds(compare(body, same)), Kinds());
    }
}

TEST(MeshCorners, ThatMovedByLessThanTheDeflectionAreFound)
{
    for (auto const & body : bodies()) {
        // All corners that are at the same place as the first.
        TopExp_Explorer const face(body, TopAbs_FACE);
        TopLoc_Location location;
        sdk_tessellate(body, {.linear = deflection, .angular = 0.5});
        auto const place = BRep_Tool::Triangulation(TopoDS::Face(face.Current()), location)->Node(2);
        auto const findings =
            compare(body, shifted_where([&](gp_Pnt const & point) { return point.Distance(place) < 1.0e-6; },
                                        gp_Vec(0.03, 0.03, 0.03)));
        auto const * finding = find(findings, "corner");
        ASSERT_NE(finding, nullptr) << kinds(findings).size();
        EXPECT_GT(*finding->output, 0.005);
        EXPECT_LT(*finding->output, 0.06);
    }
}

TEST(MeshCorners, ThatMovedWithinAPlaneAreFoundByTheNextSurface)
{
    auto const findings =
        compare(BRepPrimAPI_MakeCylinder(10, 20).Shape(), shifted_where(
                                                              [](gp_Pnt const & point) {
                                                                  return point.Distance({10, 0, 20}) < 1.0e-6;
                                                              },
                                                              gp_Vec(-deflection / 2, 0, 0)));
    auto const * finding = find(findings, "corner");
    ASSERT_NE(finding, nullptr);
    EXPECT_NEAR(*finding->output, deflection / 2, 1.0e-3);
    EXPECT_EQ(finding->weight, sdkWeight::difference);
}

TEST(MeshCorners, OfAModuleThatPromisesNothingMayLieAnywhere)
{
    auto options = everything();
    options.promise.made = false;
    options.promise.holds.surfaces = false;
    options.promise.deflection = deflection;
    auto const cylinder = BRepPrimAPI_MakeCylinder(10, 20).Shape();
    auto const mesh = triangles_of(cylinder, shifted_where(
                                                 [](gp_Pnt const & point) {
                                                     return point.Distance({10, 0, 20}) < 1.0e-6;
                                                 },
                                                 gp_Vec(-deflection / 2, 0, 0)));
    EXPECT_EQ(kinds(sdk_compare(inventory_of({{"part", cylinder}}), inventory_of({{"part", mesh}}), options)),
              Kinds());
}

TEST(MeshCorners, AreNotLookedAtWhereTheSourceHasTriangles)
{
    std::vector<sdkFinding> findings;
    auto const cube = inventory_of({{"part", kit_facet_cube()}});
    sdk_compare_mesh_corners(cube, cube, findings);
    EXPECT_TRUE(findings.empty());
}
