#include "sdk/measure/sdkCurveIntegrals.h"

#include "sdk/measure/sdkGaussRule.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TopLoc_Location.hxx>

namespace {

// Of the parts between which the curve is not smooth; the ends of a flat ellipse need as many.
constexpr int pieces = 32;
constexpr int points = 12;

} // namespace

sdkCurveIntegrals sdk_curve_integrals(TopoDS_Edge const & edge)
{
    sdkCurveIntegrals result;
    TopLoc_Location location;
    double first = 0;
    double last = 0;
    if (BRep_Tool::Curve(edge, location, first, last).IsNull() || Precision::IsInfinite(first) ||
        Precision::IsInfinite(last)) {
        return result;
    }
    BRepAdaptor_Curve const curve(edge);
    TColStd_Array1OfReal knots(1, curve.NbIntervals(GeomAbs_CN) + 1);
    curve.Intervals(knots, GeomAbs_CN);
    int const divisions = curve.GetType() == GeomAbs_Line ? 1 : pieces;
    for (int span = 1; span < knots.Upper(); ++span) {
        double const half = (knots(span + 1) - knots(span)) / divisions / 2;
        for (int piece = 0; piece < divisions; ++piece) {
            double const middle = knots(span) + (2 * piece + 1) * half;
            for (auto const & [place, weight] : sdk_gauss_rule(points)) {
                gp_Pnt point;
                gp_Vec tangent;
                curve.D1(middle + half * place, point, tangent);
                double const length = half * weight * tangent.Magnitude();
                result.length += length;
                result.moment += point.XYZ() * length;
            }
        }
    }
    return result;
}
