#include "sdk/measure/sdkTotalsComparison.h"

#include <algorithm>
#include <cmath>

namespace {

// Coordinates in single precision.
constexpr double rounding = 1.0e-5;

double surface_area(sdkInventory const & inventory)
{
    double area = 0;
    for (auto const & body : inventory.bodies) {
        area += body.measure.area;
    }
    return area;
}

// Of what encloses a volume: solids, and meshes when all of the source is enclosed.
double enclosed(sdkInventory const & inventory)
{
    double volume = 0;
    for (auto const & body : inventory.bodies) {
        if (body.kind == sdkBodyKind::solid || body.kind == sdkBodyKind::mesh) {
            volume += body.measure.volume;
        }
    }
    return volume;
}

// Open shells and loose faces enclose nothing, but their triangles seem to.
bool all_enclosed(sdkInventory const & inventory)
{
    return std::none_of(inventory.bodies.begin(), inventory.bodies.end(), [](sdkBody const & body) {
        return body.kind == sdkBodyKind::shell || body.kind == sdkBodyKind::face;
    });
}

} // namespace

std::int64_t sdk_face_count(sdkInventory const & inventory)
{
    std::int64_t count = 0;
    for (auto const & body : inventory.bodies) {
        count += static_cast<std::int64_t>(body.measure.faces.size());
    }
    return count;
}

void sdk_compare_totals(sdkInventory const & source, sdkInventory const & output, sdkPromise const & promise,
                        std::vector<sdkFinding> & findings)
{
    double const area = surface_area(source);
    double const area_there = surface_area(output);
    // Chords are shorter than their arcs: a facet of a surface that bends leaves out a little of it. No bound
    // follows from the deflection alone; a tenth is more than any tolerance that makes sense gives.
    double const area_allowed = promise.deflection > 0 ? 0.1 * area : rounding * area;
    if (!(std::abs(area - area_there) <= area_allowed)) {
        findings.push_back(
            {area_there < area ? sdkWeight::loss : sdkWeight::difference,
             "area",
             {},
             {},
             area,
             area_there,
             sdkText("measure::The source has an area of %.10g mm2 and the output of %.10g mm2", area,
                     area_there)});
    }
    if (!all_enclosed(source) || !all_enclosed(output)) {
        return;
    }
    double const volume = enclosed(source);
    double const volume_there = enclosed(output);
    double const allowed = promise.deflection * std::max(area, area_there) + rounding * std::abs(volume);
    if (!(std::abs(volume - volume_there) <= allowed)) {
        findings.push_back(
            {sdkWeight::difference,
             "volume",
             {},
             {},
             volume,
             volume_there,
             sdkText("measure::The source has a volume of %.10g mm3 and the output of %.10g mm3", volume,
                     volume_there)});
    }
}

void sdk_compare_polylines(sdkInventory const & source, sdkInventory const & output,
                           std::vector<sdkFinding> & findings)
{
    double const length = source.length();
    double const there = output.length();
    if (!(std::abs(length - there) <= 0.02 * length)) {
        findings.push_back(
            {there < length ? sdkWeight::loss : sdkWeight::difference,
             "length",
             {},
             {},
             length,
             there,
             sdkText("measure::The curves of the source are %.10g mm long and the polylines of the "
                     "output %.10g mm",
                     length, there)});
    }
}
