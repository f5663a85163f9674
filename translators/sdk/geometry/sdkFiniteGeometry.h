#pragma once

#include <Geom2d_Curve.hxx>
#include <Geom_Curve.hxx>
#include <Geom_Surface.hxx>
#include <gp_Pnt.hxx>

// True when all numbers that describe it can be reckoned with, and lengths lie in reach (sdkLimits.h); also
// where there is nothing.
bool sdk_is_finite(gp_Pnt const & point);
bool sdk_is_finite(Handle(Geom_Curve) const & curve);
bool sdk_is_finite(Handle(Geom2d_Curve) const & curve);
bool sdk_is_finite(Handle(Geom_Surface) const & surface);
