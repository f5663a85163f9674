#include "sdk/measure/sdkEdgeDeviation.h"

#include "sdk/geometry/sdkEdgeRange.h"
#include "sdk/measure/sdkSurfaceDistance.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <cmath>

namespace {

// Enough to notice an ellipse that is turned, a circle of another radius, a spline with other poles.
int samples(BRepAdaptor_Curve const & curve)
{
    switch (curve.GetType()) {
    case GeomAbs_Line:
        return 3;
    case GeomAbs_Circle:
    case GeomAbs_Ellipse:
        return 9;
    case GeomAbs_BSplineCurve:
        return std::clamp(2 * curve.NbKnots() + 1, 9, 33);
    default:
        return 13;
    }
}

bool has_surface(TopoDS_Face const & face)
{
    TopLoc_Location location;
    return !BRep_Tool::Surface(face, location).IsNull();
}

double deviation(sdkSurfaceDistance & surface, TopoDS_Face const & face, TopoDS_Edge const & edge)
{
    auto const range = sdk_edge_range(edge);
    if (!range) {
        return 0;
    }
    BRepAdaptor_Curve const curve(edge);
    Handle(Geom2d_Curve) on_surface;
    double begin = range->first;
    double end = range->last;
    if (!surface.exact()) {
        on_surface = BRep_Tool::CurveOnSurface(edge, face, begin, end);
        if (on_surface.IsNull()) {
            return 0;
        }
    }
    double farthest = 0;
    int const count = samples(curve);
    for (int at = 0; at < count; ++at) {
        double const part = static_cast<double>(at) / (count - 1);
        auto const point = curve.Value(range->at(part));
        farthest = sdk_larger_deviation(
            farthest, surface.exact() ? surface.of(point)
                                      : surface.of(point, on_surface->Value(begin + part * (end - begin))));
    }
    return farthest;
}

} // namespace

double sdk_edge_deviation(TopoDS_Face const & face, TopoDS_Edge const & edge)
{
    if (!has_surface(face)) {
        return 0;
    }
    sdkSurfaceDistance surface(face);
    return deviation(surface, face, edge);
}

double sdk_edge_deviation(TopoDS_Shape const & shape)
{
    double farthest = 0;
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    for (int number = 1; number <= faces.Extent(); ++number) {
        auto const & face = TopoDS::Face(faces(number));
        if (!has_surface(face)) {
            continue;
        }
        sdkSurfaceDistance surface(face);
        for (TopExp_Explorer edge(face, TopAbs_EDGE); edge.More(); edge.Next()) {
            farthest = sdk_larger_deviation(farthest, deviation(surface, face, TopoDS::Edge(edge.Current())));
        }
    }
    return farthest;
}

double sdk_larger_deviation(double a, double b)
{
    return std::isnan(a) || a > b ? a : b;
}
