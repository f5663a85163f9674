#include "sdk/measure/sdkTotalsComparison.h"

#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/measure/sdkFacetAllowance.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Coordinates in single precision.
constexpr double rounding = 1.0e-5;

gp_Mat outer(gp_XYZ const & a)
{
    return {a.X() * a.X(), a.X() * a.Y(), a.X() * a.Z(), a.Y() * a.X(), a.Y() * a.Y(),
            a.Y() * a.Z(), a.Z() * a.X(), a.Z() * a.Y(), a.Z() * a.Z()};
}

// The area of everything as if it were one body.
class Area {
public:
    explicit Area(sdkInventory const & inventory)
    {
        std::vector<std::pair<sdkBody const *, gp_XYZ>> centres;
        gp_XYZ moment;
        for (auto const & body : inventory.bodies) {
            if (body.kind < sdkBodyKind::curve) {
                auto const at = centre_of(body.measure);
                // About a point of the first body, so that what lies far from the origin loses no digits.
                m_centre = centres.empty() ? at : m_centre;
                centres.emplace_back(&body, at);
                m_amount += body.measure.area;
                moment += (at - m_centre) * body.measure.area;
                m_extent.Add(body.measure.extent);
            }
        }
        if (m_amount > 0) {
            m_centre += moment / m_amount;
        }
        for (auto const & [body, at] : centres) {
            m_moments += body->measure.moments + outer(at - m_centre).Multiplied(body->measure.area);
        }
    }

    double amount() const { return m_amount; }
    gp_Pnt centre() const { return m_centre; }
    gp_Mat const & moments() const { return m_moments; }
    double size() const { return m_extent.IsVoid() ? 0 : std::sqrt(m_extent.SquareExtent()); }

private:
    // The centroid of a solid is that of its volume.
    static gp_XYZ centre_of(sdkBodyMeasure const & measure)
    {
        gp_XYZ moment;
        double area = 0;
        for (auto const & face : measure.faces) {
            moment += (face.centroid.XYZ() - measure.centroid.XYZ()) * face.area;
            area += face.area;
        }
        return measure.centroid.XYZ() + (area > 0 ? moment / area : gp_XYZ());
    }

    double m_amount = 0;
    gp_XYZ m_centre;
    gp_Mat m_moments{0, 0, 0, 0, 0, 0, 0, 0, 0};
    Bnd_Box m_extent;
};

double largest(gp_Mat const & matrix)
{
    double largest = 0;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            double const value = std::abs(matrix.Value(row, column));
            // What is no number is larger than all.
            largest = value <= largest ? largest : value;
        }
    }
    return largest;
}

// What triangles may leave out where surfaces bend. Modules that promise nothing may have their own way to
// triangles, of which no bound follows; a tenth is more than any tolerance that makes sense gives.
double bend_of(sdkInventory const & source, double area, double deflection, sdkPromise const & promise)
{
    if (deflection <= 0) {
        return 0;
    }
    return promise.made ? sdk_facet_allowance(source, deflection) : 0.1 * area;
}

// Where the area lies, once it is known to be as large.
void compare_places(Area const & source, Area const & output, double deflection, double area_allowed,
                    std::vector<sdkFinding> & findings)
{
    double const area = source.amount();
    double const size = std::max(source.size(), output.size());
    // What chords leave out on one side only draws the centroid to the other. Joining near points moves them
    // by the usual tolerance.
    double const share = deflection > 0 && area > 0 ? std::min(0.1, 2 * area_allowed / area) : 0;
    double const shift = 2 * deflection + (rounding + share) * size + sdkTolerances().absolute;
    double const moved = source.centre().Distance(output.centre());
    if (!(moved <= shift)) {
        auto const from = sdk_point_text(source.centre());
        auto const to = sdk_point_text(output.centre());
        findings.push_back({sdkWeight::difference,
                            "centroid",
                            {},
                            {},
                            0,
                            moved,
                            sdkText("measure::The area of the source has its centroid at %s and that of the "
                                    "output at %s, %.6g mm apart",
                                    from, to, moved)});
        return;
    }
    double const turned = largest(source.moments() - output.moments());
    if (!(turned <= 2 * area * size * shift + 10 * rounding * area * size * size)) {
        findings.push_back({sdkWeight::difference,
                            "shape",
                            {},
                            {},
                            area,
                            output.amount(),
                            sdkText("measure::The output has another shape than the source or lies "
                                    "otherwise, with an area of %.10g mm2",
                                    output.amount())});
    }
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

// A writer of triangles has nothing to approximate in them.
bool triangles_only(sdkInventory const & inventory)
{
    return inventory.count(sdkBodyKind::mesh) > 0 &&
           std::none_of(inventory.bodies.begin(), inventory.bodies.end(),
                        [](sdkBody const & body) { return body.kind < sdkBodyKind::mesh; });
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
    Area const surfaces(source);
    Area const surfaces_there(output);
    double const area = surfaces.amount();
    double const area_there = surfaces_there.amount();
    double const deflection = triangles_only(source) ? 0 : promise.deflection;
    double const area_allowed = rounding * area + bend_of(source, area, deflection, promise);
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
    } else {
        compare_places(surfaces, surfaces_there, deflection, area_allowed, findings);
    }
    if (!all_enclosed(source) || !all_enclosed(output)) {
        return;
    }
    double const volume = enclosed(source);
    double const volume_there = enclosed(output);
    double const allowed = deflection * std::max(area, area_there) + rounding * std::abs(volume);
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

void sdk_compare_triangle_count(sdkInventory const & output, sdkPromise const & promise,
                                std::vector<sdkFinding> & findings)
{
    std::int64_t there = 0;
    for (auto const & body : output.bodies) {
        there += body.measure.triangles;
    }
    if (promise.triangles >= 0 && there != promise.triangles) {
        findings.push_back({there < promise.triangles ? sdkWeight::loss : sdkWeight::difference,
                            "triangles",
                            {},
                            {},
                            static_cast<double>(promise.triangles),
                            static_cast<double>(there),
                            sdkText("measure::%d triangles were written and %d are in the output",
                                    promise.triangles, there)});
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
