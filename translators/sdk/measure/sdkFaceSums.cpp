#include "sdk/measure/sdkFaceSums.h"

void sdkFaceSums::add(sdkSurfacePoint const & at, double weight)
{
    auto const normal = at.along_u.Crossed(at.along_v) * weight;
    auto const r = at.point - m_reference;
    double const area = weight < 0 ? -normal.Modulus() : normal.Modulus();
    double const outflow = r.Dot(normal);
    auto const moment = r * area;
    m_area += area;
    m_area_moment += moment;
    m_second[0] += r.X() * moment.X();
    m_second[1] += r.X() * moment.Y();
    m_second[2] += r.X() * moment.Z();
    m_second[3] += r.Y() * moment.Y();
    m_second[4] += r.Y() * moment.Z();
    m_second[5] += r.Z() * moment.Z();
    m_vector_area += normal;
    m_outflow += outflow;
    m_outflow_moment += r * outflow;
}

sdkFaceIntegrals sdkFaceSums::integrals() const
{
    auto const & [xx, xy, xz, yy, yz, zz] = m_second;
    sdkFaceIntegrals result;
    result.area = m_area;
    result.area_moment = m_area_moment;
    result.second_moment = gp_Mat(xx, xy, xz, xy, yy, yz, xz, yz, zz);
    result.vector_area = m_vector_area;
    result.volume = m_outflow / 3;
    result.volume_moment = m_outflow_moment / 4;
    return result;
}
