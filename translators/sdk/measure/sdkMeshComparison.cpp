#include "sdk/measure/sdkMeshComparison.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/measure/sdkBody.h"
#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/measure/sdkMeshMeasure.h"
#include "sdk/measure/sdkOuterExtent.h"
#include "sdk/sdkParallel.h"

#include <TopExp_Explorer.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>

namespace {

// Coordinates in single precision.
constexpr double rounding = 1.0e-5;

// Solids only: what is open in the source may be open in the output.
bool all_solids(TopoDS_Shape const & shape)
{
    return !shape.IsNull() && TopExp_Explorer(shape, TopAbs_SOLID).More() &&
           !TopExp_Explorer(shape, TopAbs_FACE, TopAbs_SOLID).More();
}

struct Farthest {
    double distance = 0;
    gp_Pnt point;
};

// How far a point lies outside a box.
double beyond(gp_Pnt const & point, Bnd_Box const & box)
{
    std::array<double, 6> ends{};
    box.Get(ends[0], ends[1], ends[2], ends[3], ends[4], ends[5]);
    double distance = 0;
    for (int axis = 1; axis <= 3; ++axis) {
        auto const at = static_cast<std::size_t>(axis - 1);
        double const value = point.Coord(axis);
        // What is no number lies outside.
        if (!(value >= ends[at] && value <= ends[at + 3])) {
            double const outside = std::max(ends[at] - value, value - ends[at + 3]);
            distance = outside <= distance ? distance : outside;
        }
    }
    return distance;
}

Farthest farthest_beyond(TopoDS_Shape const & shape, Bnd_Box const & box)
{
    Farthest farthest;
    if (!box.IsVoid()) {
        for (auto const & point : sdk_face_points(shape)) {
            if (double const distance = beyond(point, box); !(distance <= farthest.distance)) {
                farthest = {distance, point};
            }
        }
    }
    return farthest;
}

void tell_beyond(Farthest const & farthest, double allowed, std::string_view text,
                 std::vector<sdkFinding> & findings)
{
    if (!(farthest.distance <= allowed)) {
        auto const place = sdk_point_text(farthest.point);
        findings.push_back({sdkWeight::difference,
                            "extent",
                            {},
                            place,
                            0,
                            farthest.distance,
                            sdkText(text, farthest.distance, place)});
    }
}

void compare_extents(sdkMeshSource const & source, TopoDS_Shape const & output, double deflection,
                     std::vector<sdkFinding> & findings)
{
    auto const & box = source.extent;
    double const size = box.IsVoid() || box.IsOpen() ? 0 : std::sqrt(box.SquareExtent());
    double const allowed = 2 * deflection + rounding * size + sdkTolerances().absolute;
    tell_beyond(farthest_beyond(output, box), allowed,
                "measure::The output reaches %.6g mm beyond the source, at %s", findings);
    // Of surfaces it is told part by part how far they lie off.
    if (source.triangles) {
        tell_beyond(farthest_beyond(source.shape, sdk_outer_extent(output)), allowed,
                    "measure::The source reaches %.6g mm beyond the output, at %s", findings);
    }
}

// How many sides of triangles without a neighbour the source accounts for; none where nobody can tell.
std::optional<std::int64_t> sides_to_expect(TopoDS_Shape const & source)
{
    if (sdk_triangles_only(source)) {
        return sdk_unmatched_edges(source);
    }
    return all_solids(source) ? std::optional<std::int64_t>(0) : std::nullopt;
}

void compare_sides(std::optional<std::int64_t> const & expected, TopoDS_Shape const & output,
                   std::vector<sdkFinding> & findings)
{
    if (!expected) {
        return;
    }
    if (auto const unmatched = sdk_unmatched_edges(output); unmatched > *expected) {
        findings.push_back(
            {sdkWeight::difference,
             "unmatched-edges",
             {},
             {},
             static_cast<double>(*expected),
             static_cast<double>(unmatched),
             *expected == 0
                 ? sdkText("measure::%d sides of triangles in the output have no neighbour: it is not "
                           "watertight",
                           unmatched)
                 : sdkText("measure::%d sides of triangles have no neighbour in the source and %d in the "
                           "output",
                           *expected, unmatched)});
    }
}

// Every thread takes so many points at a time.
constexpr std::size_t portion = 256;

std::vector<double> distances(std::vector<sdkSurfacePoint> const & points, sdkMeshDistance const & mesh,
                              int threads)
{
    std::vector<double> result(points.size());
    auto const portions = static_cast<int>((points.size() + portion - 1) / portion);
    sdk_in_parallel(portions, threads, [&](int number) {
        auto const begin = static_cast<std::size_t>(number) * portion;
        for (auto at = begin; at < std::min(begin + portion, points.size()); ++at) {
            result[at] = mesh.of(points[at].point);
        }
    });
    return result;
}

void compare_distances(sdkMeshSource const & source, sdkMeshDistance const & mesh, sdkPromise const & promise,
                       int threads, std::vector<sdkFinding> & findings)
{
    // Twice: the mesher looks at few points, and single precision rounds.
    double const allowed = 2 * promise.deflection;
    std::map<std::string, Farthest> parts;
    auto const distance = distances(source.points, mesh, threads);
    for (std::size_t at = 0; at < distance.size(); ++at) {
        auto const & [point, part] = source.points[at];
        if (auto & farthest = parts[part]; !(distance[at] <= farthest.distance)) {
            farthest = {distance[at], point};
        }
    }
    for (auto const & [part, farthest] : parts) {
        if (!(farthest.distance <= allowed)) {
            auto const place = sdk_point_text(farthest.point);
            findings.push_back(
                {sdkWeight::difference, "deviation", part, place, promise.deflection, farthest.distance,
                 sdkText("measure::The triangles of %s lie up to %.6g mm off its surface, at %s; %.6g "
                         "mm were asked for",
                         part, farthest.distance, place, promise.deflection)});
        }
    }
}

} // namespace

sdkMeshSource sdk_mesh_source(sdkDocument const & document, bool hidden)
{
    sdkMeshSource source{.shape = sdk_whole_shape(document), .points = {}, .extent = {}, .sides = {}};
    if (!source.shape.IsNull()) {
        source.triangles = sdk_triangles_only(source.shape);
        if (!source.triangles) {
            source.points = sdk_surface_points(document, hidden);
        }
        source.extent = sdk_outer_extent(source.shape);
        source.sides = sides_to_expect(source.shape);
    }
    return source;
}

void sdk_compare_mesh(sdkMeshSource const & source, sdkDocument const & output, sdkPromise const & promise,
                      std::vector<sdkFinding> & findings, int threads)
{
    auto const shape = sdk_whole_shape(output);
    if (source.shape.IsNull() || shape.IsNull()) {
        return; // nothing came back, which is told of the bodies
    }
    if (!source.triangles) {
        if (sdkMeshDistance const mesh(output); !mesh.empty()) {
            compare_distances(source, mesh, promise, threads, findings);
        }
    }
    compare_extents(source, shape, source.triangles ? 0 : promise.deflection, findings);
    if (sdk_triangles_only(shape)) {
        compare_sides(source.sides, shape, findings);
    }
}
