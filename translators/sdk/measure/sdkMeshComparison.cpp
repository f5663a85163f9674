#include "sdk/measure/sdkMeshComparison.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/measure/sdkBody.h"
#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/measure/sdkMeshDistance.h"
#include "sdk/measure/sdkMeshMeasure.h"
#include "sdk/measure/sdkOuterExtent.h"

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

void compare_extents(TopoDS_Shape const & source, TopoDS_Shape const & output, double deflection,
                     std::vector<sdkFinding> & findings)
{
    auto const box = sdk_outer_extent(source);
    double const size = box.IsVoid() || box.IsOpen() ? 0 : std::sqrt(box.SquareExtent());
    double const allowed = 2 * deflection + rounding * size + sdkTolerances().absolute;
    tell_beyond(farthest_beyond(output, box), allowed,
                "measure::The output reaches %.6g mm beyond the source, at %s", findings);
    // Of surfaces it is told part by part how far they lie off.
    if (sdk_triangles_only(source)) {
        tell_beyond(farthest_beyond(source, sdk_outer_extent(output)), allowed,
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

void compare_sides(TopoDS_Shape const & source, TopoDS_Shape const & output,
                   std::vector<sdkFinding> & findings)
{
    auto const expected = sides_to_expect(source);
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

void compare_distances(sdkDocument const & source, sdkMeshDistance const & mesh, sdkPromise const & promise,
                       std::vector<sdkFinding> & findings)
{
    // Twice: the mesher looks at few points, and single precision rounds.
    double const allowed = 2 * promise.deflection;
    std::map<std::string, Farthest> parts;
    for (auto const & [point, part] : sdk_surface_points(source, promise.hidden)) {
        double const distance = mesh.of(point);
        if (auto & farthest = parts[part]; !(distance <= farthest.distance)) {
            farthest = {distance, point};
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

void sdk_compare_mesh(sdkDocument const & source, sdkDocument const & output, sdkPromise const & promise,
                      std::vector<sdkFinding> & findings)
{
    auto const from = sdk_whole_shape(source);
    auto const to = sdk_whole_shape(output);
    if (from.IsNull() || to.IsNull()) {
        return; // nothing came back, which is told of the bodies
    }
    bool const exact = sdk_triangles_only(from);
    if (!exact) {
        if (sdkMeshDistance const mesh(output); !mesh.empty()) {
            compare_distances(source, mesh, promise, findings);
        }
    }
    compare_extents(from, to, exact ? 0 : promise.deflection, findings);
    if (sdk_triangles_only(to)) {
        compare_sides(from, to, findings);
    }
}
