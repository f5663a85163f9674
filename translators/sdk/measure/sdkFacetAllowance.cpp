#include "sdk/measure/sdkFacetAllowance.h"

#include "sdk/geometry/sdkEdgeRange.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <gp_Cone.hxx>
#include <gp_Cylinder.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double most = 0.1;
// Triangles may lie twice as far off as was asked, and not along the curvature.
constexpr double safety = 3;

// Of free-form surfaces: the mean of what is found at some places.
double sampled_bend(TopoDS_Face const & face, BRepAdaptor_Surface const & surface)
{
    constexpr int steps = 5;
    std::array<double, 4> ends{};
    BRepTools::UVBounds(face, ends[0], ends[1], ends[2], ends[3]);
    if (std::any_of(ends.begin(), ends.end(), [](double end) { return Precision::IsInfinite(end); })) {
        return std::numeric_limits<double>::infinity();
    }
    double sum = 0;
    for (int i = 0; i < steps; ++i) {
        for (int j = 0; j < steps; ++j) {
            gp_Pnt point;
            gp_Vec u;
            gp_Vec v;
            gp_Vec uu;
            gp_Vec vv;
            gp_Vec uv;
            surface.D2(ends[0] + (ends[1] - ends[0]) * (i + 0.5) / steps,
                       ends[2] + (ends[3] - ends[2]) * (j + 0.5) / steps, point, u, v, uu, vv, uv);
            auto const normal = u.Crossed(v);
            double const square = normal.SquareMagnitude();
            if (square <= gp::Resolution()) {
                return std::numeric_limits<double>::infinity();
            }
            auto const unit = normal / std::sqrt(square);
            double const l = uu.Dot(unit);
            double const m = uv.Dot(unit);
            double const n = vv.Dot(unit);
            double const gauss = (l * n - m * m) / square;
            double const mean =
                (u.SquareMagnitude() * n - 2 * u.Dot(v) * m + v.SquareMagnitude() * l) / (2 * square);
            double const root = std::sqrt(std::max(0.0, mean * mean - gauss));
            sum += std::abs(mean + root) + std::abs(mean - root);
        }
    }
    return sum / (steps * steps);
}

// The sum of both curvatures.
double bend(TopoDS_Face const & face, gp_Pnt const & centroid)
{
    BRepAdaptor_Surface const surface(face, Standard_False);
    switch (surface.GetType()) {
    case GeomAbs_Plane:
        return 0;
    case GeomAbs_Cylinder:
        return 1 / surface.Cylinder().Radius();
    case GeomAbs_Cone: {
        auto const cone = surface.Cone();
        auto const offset = centroid.XYZ() - cone.Location().XYZ();
        double const height = offset.Dot(cone.Axis().Direction().XYZ());
        double const radius = std::abs(cone.RefRadius() + height * std::tan(cone.SemiAngle()));
        return 2 / radius;
    }
    case GeomAbs_Sphere:
        return 2 / surface.Sphere().Radius();
    case GeomAbs_Torus: {
        auto const torus = surface.Torus();
        double const inner = torus.MajorRadius() - torus.MinorRadius();
        return 1 / torus.MinorRadius() + (inner > 0 ? 1 / inner : std::numeric_limits<double>::infinity());
    }
    default:
        return sampled_bend(face, surface);
    }
}

// Of the edges that are not straight, by some of their points.
double bent_length(TopoDS_Face const & face)
{
    constexpr int pieces = 12;
    double length = 0;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        auto const range = sdk_bounded_range(edge);
        if (!range) {
            continue;
        }
        BRepAdaptor_Curve const curve(edge);
        if (curve.GetType() == GeomAbs_Line) {
            continue;
        }
        auto before = curve.Value(range->first);
        for (int at = 1; at <= pieces; ++at) {
            auto const after = curve.Value(range->at(static_cast<double>(at) / pieces));
            length += before.Distance(after);
            before = after;
        }
    }
    return length;
}

double allowance(TopoDS_Face const & face, sdkFaceMeasure const & measure, double deflection)
{
    double const surface = safety / 3 * deflection * bend(face, measure.centroid) * measure.area;
    double const edges = deflection * bent_length(face);
    // What is no number is no bound.
    double const all = surface + edges;
    return all <= most * measure.area ? all : most * measure.area;
}

} // namespace

double sdk_facet_allowance(sdkInventory const & source, double deflection)
{
    double sum = 0;
    for (auto const & body : source.bodies) {
        std::size_t number = 0;
        auto const & faces = body.measure.faces;
        for (TopExp_Explorer one(body.shape, TopAbs_FACE); one.More() && number < faces.size();
             one.Next(), ++number) {
            auto const & face = TopoDS::Face(one.Current());
            TopLoc_Location location;
            if (!BRep_Tool::Surface(face, location).IsNull()) {
                sum += allowance(face, faces[number], deflection);
            }
        }
    }
    return sum;
}
