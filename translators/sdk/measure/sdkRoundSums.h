#pragma once

#include "sdk/measure/sdkFaceBoundary.h"
#include "sdk/measure/sdkFaceIntegrals.h"

// Of a cylinder, cone, sphere or torus.
bool sdk_is_round(GeomAbs_SurfaceType type);

// The integrals of what lies along u between this u and each node of the boundary, on a surface that is
// round. A row along u is an arc there, and its integrals have formulas. Looks where du x dv points.
sdkFaceIntegrals sdk_round_integrals(BRepAdaptor_Surface const & surface,
                                     std::vector<sdkBoundaryNode> const & nodes, double u_first,
                                     gp_Pnt const & reference);
