#include "sdk/measure/sdkSplineAxis.h"

#include <algorithm>

sdkSplineAxis::sdkSplineAxis(TColStd_Array1OfReal const & flat_knots, int degree)
    : m_knots(flat_knots.begin(), flat_knots.end()), m_degree(static_cast<std::size_t>(degree))
{
}

std::size_t sdkSplineAxis::first_pole(double place) const
{
    auto const first = m_knots.begin() + static_cast<std::ptrdiff_t>(m_degree);
    auto const last = m_knots.end() - static_cast<std::ptrdiff_t>(m_degree) - 1;
    auto after = std::upper_bound(first + 1, last, place);
    // At the end, the last span that has a length.
    while (after - 1 > first && *(after - 1) == *after) {
        --after;
    }
    return static_cast<std::size_t>(after - first) - 1;
}

// The recurrence of Cox and de Boor. At the last degree but one the functions give the slopes, too.
void sdkSplineAxis::evaluate(std::vector<double> const & places, sdkSplineBasis & basis) const
{
    auto const count = places.size();
    basis.first_pole = first_pole((places.front() + places.back()) / 2);
    basis.functions = m_degree + 1;
    basis.places = count;
    basis.values.assign(basis.functions * count, 0);
    basis.slopes.assign(basis.functions * count, 0);
    double * const values = basis.values.data();
    double * const slopes = basis.slopes.data();
    double const * const knots = m_knots.data() + basis.first_pole + m_degree;
    double const * const at = places.data();
    std::fill_n(values, count, 1.0);
    for (std::size_t degree = 1; degree <= m_degree; ++degree) {
        // What a function hands to its neighbour; in the end, the last function.
        double * const handed = values + degree * count;
        for (std::size_t function = 0; function < degree; ++function) {
            double const end = knots[function + 1];
            double const begin = *(knots + function + 1 - degree);
            double const inverse = 1 / (end - begin);
            double * const value = values + function * count;
            if (degree == m_degree) {
                double * const slope = slopes + function * count;
                double * const next = slope + count;
                double const factor = static_cast<double>(degree) * inverse;
                for (std::size_t place = 0; place < count; ++place) {
                    slope[place] -= factor * value[place];
                    next[place] += factor * value[place];
                }
            }
            for (std::size_t place = 0; place < count; ++place) {
                double const share = value[place] * inverse;
                value[place] = handed[place] + (end - at[place]) * share;
                handed[place] = (at[place] - begin) * share;
            }
        }
    }
}
