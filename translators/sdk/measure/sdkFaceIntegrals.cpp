#include "sdk/measure/sdkFaceIntegrals.h"

#include "sdk/measure/sdkFaceBoundary.h"
#include "sdk/measure/sdkFaceSums.h"
#include "sdk/measure/sdkRoundSums.h"
#include "sdk/measure/sdkSplineSums.h"

#include <algorithm>
#include <cmath>

namespace {

// Along u over one span, at the v of a node of the boundary.
void add_row(BRepAdaptor_Surface const & surface, sdkBoundaryNode const & node, double from, double to,
             int points, sdkFaceSums & sums)
{
    double const half = (to - from) / 2;
    for (auto const & [place, weight] : sdk_gauss_rule(points)) {
        gp_Pnt point;
        gp_Vec along_u;
        gp_Vec along_v;
        surface.D1(from + half * (1 + place), node.v, point, along_u, along_v);
        sums.add({point.XYZ(), along_u.XYZ(), along_v.XYZ()}, half * weight * node.weight);
    }
}

// Span by span, and in each along the boundary: the surface keeps the patch that it is on.
void add_rows(BRepAdaptor_Surface const & surface, std::vector<sdkBoundaryNode> const & nodes,
              sdkSpans const & spans, int points, sdkFaceSums & sums)
{
    for (std::size_t at = 0; at + 1 < spans.size(); ++at) {
        for (auto const & node : nodes) {
            if (node.u > spans[at]) {
                add_row(surface, node, spans[at], std::min(node.u, spans[at + 1]), points, sums);
            }
        }
    }
}

bool finite(std::vector<sdkBoundaryNode> const & nodes)
{
    return std::all_of(nodes.begin(), nodes.end(),
                       [](auto const & node) { return std::isfinite(node.u) && std::isfinite(node.v); });
}

// Of the face as it looks where du x dv points.
sdkFaceIntegrals forward_integrals(TopoDS_Face const & face, gp_Pnt const & reference)
{
    BRepAdaptor_Surface const surface(face, Standard_False);
    sdkSurfacePatches const patches(surface);
    auto const nodes = sdk_boundary_nodes(face, surface, patches);
    if (nodes.empty()) {
        return {};
    }
    auto const [least, most] = std::minmax_element(nodes.begin(), nodes.end(),
                                                   [](auto const & a, auto const & b) { return a.u < b.u; });
    if (sdk_is_round(patches.type())) {
        return sdk_round_integrals(surface, nodes, least->u, reference);
    }
    auto const spans = patches.u_spans(least->u, most->u);
    int const points = patches.u_points();
    sdkFaceSums sums(reference);
    if (patches.type() == GeomAbs_BSplineSurface && finite(nodes)) {
        sdk_add_spline_rows(surface, nodes, spans, points, sums);
    } else {
        add_rows(surface, nodes, spans, points, sums);
    }
    return sums.integrals();
}

} // namespace

sdkFaceIntegrals & sdkFaceIntegrals::operator+=(sdkFaceIntegrals const & other)
{
    area += other.area;
    area_moment += other.area_moment;
    second_moment += other.second_moment;
    vector_area += other.vector_area;
    volume += other.volume;
    volume_moment += other.volume_moment;
    return *this;
}

sdkFaceIntegrals sdk_face_integrals(TopoDS_Face const & face, gp_Pnt const & reference)
{
    auto integrals = forward_integrals(face, reference);
    if (face.Orientation() == TopAbs_REVERSED) {
        integrals.vector_area.Reverse();
        integrals.volume = -integrals.volume;
        integrals.volume_moment.Reverse();
    }
    return integrals;
}
