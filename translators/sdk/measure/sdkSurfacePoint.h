#pragma once

#include <gp_XYZ.hxx>

// A point of a surface and its first derivatives.
struct sdkSurfacePoint {
    gp_XYZ point;
    gp_XYZ along_u;
    gp_XYZ along_v;
};
