#include "sdk/measure/sdkFaceSums.h"

void sdkFaceSums::add(gp_Pnt const & point, gp_Vec const & along_u, gp_Vec const & along_v, double weight)
{
    auto const normal = along_u.XYZ().Crossed(along_v.XYZ());
    auto const r = point.XYZ() - m_reference;
    double const area = weight * normal.Modulus();
    double const cone = weight * r.Dot(normal);
    m_sums.area += area;
    m_sums.area_moment += r * area;
    for (int row = 1; row <= 3; ++row) {
        for (int column = row; column <= 3; ++column) {
            auto & value = m_sums.second_moment.ChangeValue(row, column);
            value += r.Coord(row) * r.Coord(column) * area;
            m_sums.second_moment.SetValue(column, row, value);
        }
    }
    m_sums.vector_area += normal * weight;
    m_sums.volume += cone / 3;
    m_sums.volume_moment += r * (cone / 4);
}

sdkFaceIntegrals sdkFaceSums::integrals(bool reversed) const
{
    auto result = m_sums;
    double const sign = reversed ? -1 : 1;
    result.vector_area *= sign;
    result.volume *= sign;
    result.volume_moment *= sign;
    return result;
}
