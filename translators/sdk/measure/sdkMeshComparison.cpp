#include "sdk/measure/sdkMeshComparison.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/measure/sdkBody.h"
#include "sdk/measure/sdkMeshDistance.h"
#include "sdk/measure/sdkMeshMeasure.h"

#include <TopExp_Explorer.hxx>

#include <map>

namespace {

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

} // namespace

void sdk_compare_mesh(sdkDocument const & source, sdkDocument const & output, sdkPromise const & promise,
                      std::vector<sdkFinding> & findings)
{
    sdkMeshDistance const mesh(output);
    if (mesh.empty()) {
        return;
    }
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
    if (!all_solids(sdk_whole_shape(source))) {
        return;
    }
    if (auto const unmatched = sdk_unmatched_edges(sdk_whole_shape(output)); unmatched > 0) {
        findings.push_back(
            {sdkWeight::difference,
             "unmatched-edges",
             {},
             {},
             0,
             static_cast<double>(unmatched),
             sdkText("measure::%d sides of triangles in the output have no neighbour: it is not "
                     "watertight",
                     unmatched)});
    }
}
