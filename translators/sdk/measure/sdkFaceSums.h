#pragma once

#include "sdk/measure/sdkFaceIntegrals.h"

#include <gp_Vec.hxx>

// The sums of the integrals of a face over points of its surface.
class sdkFaceSums {
public:
    explicit sdkFaceSums(gp_Pnt const & reference) : m_reference(reference.XYZ()) {}

    // The weight is for du dv.
    void add(gp_Pnt const & point, gp_Vec const & along_u, gp_Vec const & along_v, double weight);

    // Of a face that looks where du x dv points or, reversed, to the other side.
    sdkFaceIntegrals integrals(bool reversed) const;

private:
    gp_XYZ m_reference;
    sdkFaceIntegrals m_sums;
};
