#include "step/stepSplineFault.h"

#include <StepGeom_BSplineCurveWithKnots.hxx>
#include <StepGeom_BSplineCurveWithKnotsAndRationalBSplineCurve.hxx>
#include <StepGeom_BSplineSurfaceWithKnots.hxx>
#include <StepGeom_BSplineSurfaceWithKnotsAndRationalBSplineSurface.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_HArray1OfCartesianPoint.hxx>
#include <StepGeom_HArray2OfCartesianPoint.hxx>
#include <TColStd_HArray1OfInteger.hxx>
#include <TColStd_HArray1OfReal.hxx>
#include <TColStd_HArray2OfReal.hxx>

#include <algorithm>
#include <cstdint>

namespace {

constexpr int highest_degree = 25; // that Open CASCADE has

template <class Array>
int length(Array const & array)
{
    return array.IsNull() ? 0 : array->Length();
}

// Multiplicities are added up by the library without a look at what they are.
bool fits(Handle(TColStd_HArray1OfReal) const & knots,
          Handle(TColStd_HArray1OfInteger) const & multiplicities, int poles, int degree)
{
    if (length(knots) < 2 || length(knots) != length(multiplicities) || degree < 1 ||
        degree > highest_degree) {
        return false;
    }
    std::int64_t sum = 0;
    for (int const one : *multiplicities) {
        if (one < 0) {
            return false;
        }
        sum += one;
    }
    return std::is_sorted(knots->begin(), knots->end()) && sum <= std::int64_t{2} * (poles + degree + 1);
}

std::string curve_fault(StepGeom_BSplineCurve const & curve)
{
    if (length(curve.ControlPointsList()) < 2) {
        return "it has fewer than two control points";
    }
    return {};
}

template <class Surface>
bool surface_fits(Surface const & surface)
{
    return fits(surface.UKnots(), surface.UMultiplicities(), surface.NbControlPointsListI(),
                surface.UDegree()) &&
           fits(surface.VKnots(), surface.VMultiplicities(), surface.NbControlPointsListJ(),
                surface.VDegree());
}

constexpr char const * bad_knots =
    "its knots, their multiplicities, its degree and its control points do not fit "
    "each other";
constexpr char const * bad_weights = "it does not have one weight for each control point";

} // namespace

std::string step_spline_fault(Handle(Standard_Transient) const & entity)
{
    if (auto const curve = Handle(StepGeom_BSplineCurve)::DownCast(entity); !curve.IsNull()) {
        auto fault = curve_fault(*curve);
        if (!fault.empty()) {
            return fault;
        }
        int const poles = curve->NbControlPointsList();
        if (auto const rational =
                Handle(StepGeom_BSplineCurveWithKnotsAndRationalBSplineCurve)::DownCast(entity);
            !rational.IsNull()) {
            return !fits(rational->Knots(), rational->KnotMultiplicities(), poles, curve->Degree())
                       ? bad_knots
                   : length(rational->WeightsData()) != poles ? bad_weights
                                                              : "";
        }
        auto const knots = Handle(StepGeom_BSplineCurveWithKnots)::DownCast(entity);
        return knots.IsNull() || fits(knots->Knots(), knots->KnotMultiplicities(), poles, curve->Degree())
                   ? ""
                   : bad_knots;
    }
    auto const surface = Handle(StepGeom_BSplineSurface)::DownCast(entity);
    if (surface.IsNull()) {
        return {};
    }
    if (surface->ControlPointsList().IsNull() || surface->NbControlPointsListI() < 2 ||
        surface->NbControlPointsListJ() < 2) {
        return "it has fewer than two rows of control points";
    }
    if (auto const rational =
            Handle(StepGeom_BSplineSurfaceWithKnotsAndRationalBSplineSurface)::DownCast(entity);
        !rational.IsNull()) {
        return !surface_fits(*rational) ? bad_knots
               : rational->WeightsData().IsNull() ||
                       rational->NbWeightsDataI() != surface->NbControlPointsListI() ||
                       rational->NbWeightsDataJ() != surface->NbControlPointsListJ()
                   ? bad_weights
                   : "";
    }
    auto const knots = Handle(StepGeom_BSplineSurfaceWithKnots)::DownCast(entity);
    return knots.IsNull() || surface_fits(*knots) ? "" : bad_knots;
}
