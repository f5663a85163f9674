#include "sdk/measure/sdkCurveSpans.h"

#include <Geom2dAdaptor_Curve.hxx>
#include <GeomAdaptor_Curve.hxx>
#include <TColStd_Array1OfReal.hxx>

namespace {

template <class Curve>
sdkSpans spans_of(Curve const & curve, double first, double last)
{
    TColStd_Array1OfReal all(1, curve.NbIntervals(GeomAbs_CN) + 1);
    curve.Intervals(all, GeomAbs_CN);
    sdkSpans spans(all.begin(), all.end());
    spans.front() = first;
    spans.back() = last;
    switch (curve.GetType()) {
    case GeomAbs_Line:
    case GeomAbs_BSplineCurve:
    case GeomAbs_BezierCurve:
        return spans;
    case GeomAbs_Circle:
    case GeomAbs_Ellipse:
        return sdk_divided_arcs(spans);
    default:
        return sdk_divided(spans, sdk_pieces_of_unknown);
    }
}

template <class Curve>
int degree_of(Curve const & curve)
{
    if (curve.GetType() != GeomAbs_BSplineCurve && curve.GetType() != GeomAbs_BezierCurve) {
        return 0;
    }
    return curve.Degree() + (curve.IsRational() ? 3 : 0);
}

} // namespace

sdkSpans sdk_curve_spans(GeomAdaptor_Curve const & curve, double first, double last)
{
    return spans_of(curve, first, last);
}

sdkSpans sdk_curve_spans(Geom2dAdaptor_Curve const & curve, double first, double last)
{
    return spans_of(curve, first, last);
}

int sdk_curve_degree(GeomAdaptor_Curve const & curve)
{
    return degree_of(curve);
}

int sdk_curve_degree(Geom2dAdaptor_Curve const & curve)
{
    return degree_of(curve);
}
