#include "sdk/measure/sdkSplineRows.h"

#include <cmath>

namespace {

Handle(Geom_BSplineSurface) unrolled(Handle(Geom_BSplineSurface) const & surface)
{
    if (!surface->IsUPeriodic() && !surface->IsVPeriodic()) {
        return surface;
    }
    auto const copy = Handle(Geom_BSplineSurface)::DownCast(surface->Copy());
    if (copy->IsUPeriodic()) {
        copy->SetUNotPeriodic();
    }
    if (copy->IsVPeriodic()) {
        copy->SetVNotPeriodic();
    }
    return copy;
}

} // namespace

double sdkSplineRows::Direction::in_turn(double parameter) const
{
    return period > 0 ? parameter - period * std::floor((parameter - first) / period) : parameter;
}

sdkSplineRows::Direction::Direction(TColStd_Array1OfReal const & knots, int degree, double its_period,
                                    double part_first, double part_last)
    : axis(knots, degree), first(knots(knots.Lower() + degree)), period(its_period), first_pole(0),
      poles(static_cast<std::size_t>(knots.Length() - degree - 1))
{
    if (period <= 0) {
        first_pole = axis.first_pole(part_first);
        poles = axis.first_pole(part_last) + axis.functions() - first_pole;
    }
}

sdkSplineRows::sdkSplineRows(Handle(Geom_BSplineSurface) const & surface, gp_Trsf const & place,
                             sdkParameterBox const & part)
    : m_surface(unrolled(surface)), m_rational(surface->IsURational() || surface->IsVRational()),
      m_u(m_surface->UKnotSequence(), m_surface->UDegree(), surface->IsUPeriodic() ? surface->UPeriod() : 0,
          part.u_first, part.u_last),
      m_v(m_surface->VKnotSequence(), m_surface->VDegree(), surface->IsVPeriodic() ? surface->VPeriod() : 0,
          part.v_first, part.v_last),
      m_row(m_u.poles)
{
    copy_poles(place);
}

void sdkSplineRows::copy_poles(gp_Trsf const & place)
{
    auto const & poles = m_surface->Poles();
    auto const * const weights = m_surface->Weights();
    bool const moved = place.Form() != gp_Identity;
    m_poles.reserve(m_u.poles * m_v.poles);
    auto const u_first = poles.LowerRow() + static_cast<int>(m_u.first_pole);
    auto const v_first = poles.LowerCol() + static_cast<int>(m_v.first_pole);
    for (int u = u_first; u < u_first + static_cast<int>(m_u.poles); ++u) {
        for (int v = v_first; v < v_first + static_cast<int>(m_v.poles); ++v) {
            auto const pole = moved ? poles(u, v).Transformed(place) : poles(u, v);
            double const weight = weights ? (*weights)(u, v) : 1;
            m_poles.push_back({pole.XYZ() * weight, weight});
        }
    }
}

void sdkSplineRows::evaluate(std::vector<double> const & places, sdkSplineBasis & along_u)
{
    double const middle = (places.front() + places.back()) / 2;
    double const turn = m_u.in_turn(middle) - middle;
    if (turn == 0) {
        m_u.axis.evaluate(places, along_u);
        return;
    }
    m_places = places;
    for (double & place : m_places) {
        place += turn;
    }
    m_u.axis.evaluate(m_places, along_u);
}

void sdkSplineRows::move_to(double v, double u_last)
{
    m_places.assign(1, m_v.in_turn(v));
    m_v.axis.evaluate(m_places, m_along_v);
    auto const functions = m_along_v.functions;
    double const * const values = m_along_v.values.data();
    double const * const slopes = m_along_v.slopes.data();
    // Of a periodic surface the row may come to its first poles again.
    auto const poles =
        m_u.period > 0 ? m_u.poles : m_u.axis.first_pole(u_last) + m_u.axis.functions() - m_u.first_pole;
    Pole const * pole = m_poles.data() + (m_along_v.first_pole - m_v.first_pole);
    for (std::size_t u = 0; u < poles; ++u, pole += m_v.poles) {
        Pole value{};
        Pole slope{};
        for (std::size_t function = 0; function < functions; ++function) {
            value.point += pole[function].point * values[function];
            value.weight += pole[function].weight * values[function];
            slope.point += pole[function].point * slopes[function];
            slope.weight += pole[function].weight * slopes[function];
        }
        m_row[u] = {value, slope};
    }
}

void sdkSplineRows::points(sdkSplineBasis const & along_u, std::vector<sdkSurfacePoint> & points) const
{
    points.resize(along_u.places);
    RowPole const * const row = m_row.data() + (along_u.first_pole - m_u.first_pole);
    for (std::size_t place = 0; place < along_u.places; ++place) {
        double const * value = along_u.values.data() + place;
        double const * slope = along_u.slopes.data() + place;
        gp_XYZ point;
        gp_XYZ u;
        gp_XYZ v;
        double weight = 0;
        double weight_u = 0;
        double weight_v = 0;
        for (std::size_t function = 0; function < along_u.functions; ++function) {
            auto const & pole = row[function];
            point += pole.value.point * *value;
            u += pole.value.point * *slope;
            v += pole.along_v.point * *value;
            weight += pole.value.weight * *value;
            weight_u += pole.value.weight * *slope;
            weight_v += pole.along_v.weight * *value;
            value += along_u.places;
            slope += along_u.places;
        }
        if (m_rational) {
            double const inverse = 1 / weight;
            point *= inverse;
            u = (u - point * weight_u) * inverse;
            v = (v - point * weight_v) * inverse;
        }
        points[place] = {point, u, v};
    }
}
