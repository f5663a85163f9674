#include "sdk/geometry/sdkFiniteGeometry.h"

#include "sdk/sdkLimits.h"

#include <Geom2d_BSplineCurve.hxx>
#include <Geom2d_BezierCurve.hxx>
#include <Geom2d_OffsetCurve.hxx>
#include <Geom2d_TrimmedCurve.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Geom_BezierCurve.hxx>
#include <Geom_BezierSurface.hxx>
#include <Geom_OffsetCurve.hxx>
#include <Geom_OffsetSurface.hxx>
#include <Geom_RectangularTrimmedSurface.hxx>
#include <Geom_SweptSurface.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <gp_Pnt2d.hxx>
#include <gp_Vec.hxx>
#include <gp_Vec2d.hxx>

namespace {

bool usable(gp_Pnt2d const & point)
{
    return sdk_usable(point.X()) && sdk_usable(point.Y());
}

template <class Array>
bool all_usable(Array const & numbers)
{
    for (auto const number : numbers) {
        if (!sdk_usable(number)) {
            return false;
        }
    }
    return true;
}

// Of a spline of either dimension.
template <class Curve, class Point>
bool poles_usable(Curve const & curve, Point const & usable_point)
{
    for (int pole = 1; pole <= curve.NbPoles(); ++pole) {
        if (!usable_point(curve.Pole(pole)) || !sdk_usable(curve.Weight(pole))) {
            return false;
        }
    }
    return true;
}

template <class Surface>
bool grid_usable(Surface const & surface)
{
    for (int u = 1; u <= surface.NbUPoles(); ++u) {
        for (int v = 1; v <= surface.NbVPoles(); ++v) {
            if (!sdk_is_finite(surface.Pole(u, v)) || !sdk_usable(surface.Weight(u, v))) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

bool sdk_is_finite(gp_Pnt const & point)
{
    return sdk_in_reach(point.X()) && sdk_in_reach(point.Y()) && sdk_in_reach(point.Z());
}

bool sdk_is_finite(Handle(Geom_Curve) const & curve)
{
    if (curve.IsNull()) {
        return true;
    }
    auto const point = [](gp_Pnt const & one) { return sdk_is_finite(one); };
    if (auto const spline = Handle(Geom_BSplineCurve)::DownCast(curve); !spline.IsNull()) {
        return poles_usable(*spline, point) && all_usable(spline->Knots());
    }
    if (auto const bezier = Handle(Geom_BezierCurve)::DownCast(curve); !bezier.IsNull()) {
        return poles_usable(*bezier, point);
    }
    if (auto const trimmed = Handle(Geom_TrimmedCurve)::DownCast(curve); !trimmed.IsNull()) {
        return sdk_is_finite(trimmed->BasisCurve());
    }
    if (auto const offset = Handle(Geom_OffsetCurve)::DownCast(curve); !offset.IsNull()) {
        return sdk_usable(offset->Offset()) && sdk_is_finite(offset->BasisCurve());
    }
    // The value and the first derivative of a line or conic have all of its numbers.
    gp_Pnt value;
    gp_Vec tangent;
    curve->D1(0.5, value, tangent);
    return sdk_is_finite(value) && sdk_is_finite(gp_Pnt(tangent.XYZ()));
}

bool sdk_is_finite(Handle(Geom2d_Curve) const & curve)
{
    if (curve.IsNull()) {
        return true;
    }
    if (auto const spline = Handle(Geom2d_BSplineCurve)::DownCast(curve); !spline.IsNull()) {
        return poles_usable(*spline, usable) && all_usable(spline->Knots());
    }
    if (auto const bezier = Handle(Geom2d_BezierCurve)::DownCast(curve); !bezier.IsNull()) {
        return poles_usable(*bezier, usable);
    }
    if (auto const trimmed = Handle(Geom2d_TrimmedCurve)::DownCast(curve); !trimmed.IsNull()) {
        return sdk_is_finite(trimmed->BasisCurve());
    }
    if (auto const offset = Handle(Geom2d_OffsetCurve)::DownCast(curve); !offset.IsNull()) {
        return sdk_usable(offset->Offset()) && sdk_is_finite(offset->BasisCurve());
    }
    gp_Pnt2d value;
    gp_Vec2d tangent;
    curve->D1(0.5, value, tangent);
    return usable(value) && usable(gp_Pnt2d(tangent.XY()));
}

bool sdk_is_finite(Handle(Geom_Surface) const & surface)
{
    if (surface.IsNull()) {
        return true;
    }
    if (auto const spline = Handle(Geom_BSplineSurface)::DownCast(surface); !spline.IsNull()) {
        return grid_usable(*spline) && all_usable(spline->UKnots()) && all_usable(spline->VKnots());
    }
    if (auto const bezier = Handle(Geom_BezierSurface)::DownCast(surface); !bezier.IsNull()) {
        return grid_usable(*bezier);
    }
    if (auto const trimmed = Handle(Geom_RectangularTrimmedSurface)::DownCast(surface); !trimmed.IsNull()) {
        return sdk_is_finite(trimmed->BasisSurface());
    }
    if (auto const offset = Handle(Geom_OffsetSurface)::DownCast(surface); !offset.IsNull()) {
        return sdk_usable(offset->Offset()) && sdk_is_finite(offset->BasisSurface());
    }
    if (auto const swept = Handle(Geom_SweptSurface)::DownCast(surface); !swept.IsNull()) {
        return sdk_is_finite(swept->BasisCurve());
    }
    gp_Pnt value;
    gp_Vec along_u;
    gp_Vec along_v;
    surface->D1(0.5, 0.5, value, along_u, along_v);
    return sdk_is_finite(value) && sdk_is_finite(gp_Pnt(along_u.XYZ())) &&
           sdk_is_finite(gp_Pnt(along_v.XYZ()));
}
