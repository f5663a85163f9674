#pragma once

#include "sdk/measure/sdkFaceIntegrals.h"
#include "sdk/measure/sdkSurfacePoint.h"

#include <array>

// The sums of the integrals of a face over points of its surface.
class sdkFaceSums {
public:
    explicit sdkFaceSums(gp_Pnt const & reference) : m_reference(reference.XYZ()) {}

    // The weight is for du dv.
    void add(sdkSurfacePoint const & at, double weight);

    // Of a face that looks where du x dv points.
    sdkFaceIntegrals integrals() const;

private:
    gp_XYZ m_reference;
    double m_area = 0;
    gp_XYZ m_area_moment;
    std::array<double, 6> m_second{}; // xx, xy, xz, yy, yz, zz
    gp_XYZ m_vector_area;
    double m_outflow = 0;
    gp_XYZ m_outflow_moment;
};
