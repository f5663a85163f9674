#pragma once

#include "sdk/measure/sdkSpans.h"

class Geom2dAdaptor_Curve;
class GeomAdaptor_Curve;

// The spans of a curve from its first to its last parameter in which quadrature does well: between the places
// where it is not smooth, with long arcs divided.
sdkSpans sdk_curve_spans(GeomAdaptor_Curve const & curve, double first, double last);
sdkSpans sdk_curve_spans(Geom2dAdaptor_Curve const & curve, double first, double last);

// The degree of the polynomial that integrates like one span of a spline; 0 for other curves.
int sdk_curve_degree(GeomAdaptor_Curve const & curve);
int sdk_curve_degree(Geom2dAdaptor_Curve const & curve);
