#pragma once

#include <TopoDS_Edge.hxx>
#include <gp_XYZ.hxx>

// The length of an edge in millimetres, and the integral of its points along it. Zero for an edge without a
// curve in space and for one without end.
struct sdkCurveIntegrals {
    double length = 0;
    gp_XYZ moment;
};

sdkCurveIntegrals sdk_curve_integrals(TopoDS_Edge const & edge);
