#include "sdk/measure/sdkTriangleComparison.h"

#include "sdk/geometry/sdkMeasures.h"
#include "sdk/measure/sdkMeshDistance.h"
#include "sdk/measure/sdkTotalsComparison.h"

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace {

// Triangles that stand for the surfaces themselves lie so many times closer to them.
constexpr double finer = 5;
// For the points of a mesh that are looked at.
constexpr std::int64_t most_points = 200'000;

struct Farthest {
    double distance = 0;
    gp_Pnt point;

    void take(double another, gp_Pnt const & place)
    {
        if (!(another <= distance)) {
            *this = {another, place};
        }
    }
};

void add(std::vector<sdkFinding> & findings, std::string const & part, Farthest const & farthest,
         double deflection, std::string_view text)
{
    auto const place = sdk_point_text(farthest.point);
    findings.push_back({sdkWeight::difference, "deviation", part, place, deflection, farthest.distance,
                        part.empty() ? sdkText(text, farthest.distance, place, deflection)
                                     : sdkText(text, part, farthest.distance, place, deflection)});
}

void compare_surfaces(sdkDocument const & surfaces, sdkDocument const & triangles, double deflection,
                      std::vector<sdkFinding> & findings)
{
    sdkMeshDistance const mesh(triangles);
    std::map<std::string, Farthest> parts;
    for (auto const & [point, part] : sdk_surface_points(surfaces)) {
        parts[part].take(mesh.of(point), point);
    }
    for (auto const & [part, farthest] : parts) {
        if (!(farthest.distance <= deflection)) {
            add(findings, part, farthest, deflection,
                part.empty()
                    ? "compare::A surface lies up to %.6g mm off the triangles, at %s; %.6g mm are allowed"
                    : "compare::The surface of %s lies up to %.6g mm off the triangles, at %s; %.6g mm "
                      "are allowed");
        }
    }
}

void compare_points(sdkDocument const & surfaces, sdkMeasuredModel const & triangles, double deflection,
                    std::vector<sdkFinding> & findings)
{
    auto shape = sdk_whole_shape(surfaces);
    BRepMesh_IncrementalMesh const mesher(shape, deflection / finer, Standard_False, 0.2, Standard_True);
    sdkMeshDistance const mesh(surfaces);
    if (mesh.empty()) {
        return;
    }
    std::int64_t points = 0;
    for (auto const & body : triangles.inventory.bodies) {
        points += 3 * body.measure.triangles;
    }
    auto const step = static_cast<int>(1 + points / most_points);
    Farthest farthest;
    for (TopExp_Explorer one(sdk_whole_shape(triangles.document), TopAbs_FACE); one.More(); one.Next()) {
        TopLoc_Location location;
        auto const facets = BRep_Tool::Triangulation(TopoDS::Face(one.Current()), location);
        for (int node = 1; !facets.IsNull() && node <= facets->NbNodes(); node += step) {
            auto const point = facets->Node(node).Transformed(location.Transformation());
            farthest.take(mesh.of(point), point);
        }
    }
    if (!(farthest.distance <= deflection + deflection / finer)) {
        add(findings, {}, farthest, deflection,
            "compare::A triangle lies %.6g mm off the surfaces, at %s; %.6g mm are allowed");
    }
}

// What was found out about an output and its source, of two models side by side.
sdkText side_by_side(sdkFinding const & finding)
{
    if (finding.kind == "area") {
        return sdkText("compare::A has an area of %.10g mm2 and B of %.10g mm2", *finding.source,
                       *finding.output);
    }
    if (finding.kind == "volume") {
        return sdkText("compare::A has a volume of %.10g mm3 and B of %.10g mm3", *finding.source,
                       *finding.output);
    }
    if (finding.kind == "centroid") {
        return sdkText("compare::The centroids of the areas of A and B are %.6g mm apart",
                       std::max(*finding.source, *finding.output));
    }
    return sdkText(
        "compare::A and B have other shapes or lie otherwise, with areas of %.10g mm2 and %.10g mm2",
        *finding.source, *finding.output);
}

} // namespace

std::vector<sdkFinding> sdk_compare_triangles(sdkMeasuredModel const & a, sdkMeasuredModel const & b,
                                              double deflection)
{
    bool const turned = a.inventory.count(sdkBodyKind::mesh) > 0;
    auto const & surfaces = turned ? b : a;
    auto const & triangles = turned ? a : b;
    std::vector<sdkFinding> findings;
    sdkPromise promise;
    promise.deflection = deflection;
    sdk_compare_totals(surfaces.inventory, triangles.inventory, promise, findings);
    for (auto & finding : findings) {
        if (turned) {
            std::swap(finding.source, finding.output);
        }
        finding.weight = sdkWeight::difference;
        finding.text = side_by_side(finding);
    }
    compare_surfaces(surfaces.document, triangles.document, deflection, findings);
    // Surfaces take long to be given triangles that are fine enough; what is known to differ needs none.
    if (findings.empty()) {
        compare_points(surfaces.document, triangles, deflection, findings);
    }
    return findings;
}
