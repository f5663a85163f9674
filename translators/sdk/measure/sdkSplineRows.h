#pragma once

#include "sdk/measure/sdkSplineAxis.h"
#include "sdk/measure/sdkSurfacePoint.h"

#include <Geom_BSplineSurface.hxx>
#include <gp_Trsf.hxx>

#include <cstddef>
#include <vector>

// A part of the parameters of a surface.
struct sdkParameterBox {
    double u_first;
    double u_last;
    double v_first;
    double v_last;
};

// The points of a spline surface row by row along u. What all points of a row share is computed once for the
// row, and what the same places in other rows share once for all of them. Of a periodic surface, parameters
// in any turn will do. One thread at a time.
class sdkSplineRows {
public:
    // The poles that the part of the surface needs are copied, and moved to the place.
    sdkSplineRows(Handle(Geom_BSplineSurface) const & surface, gp_Trsf const & place,
                  sdkParameterBox const & part);

    // For places along u, all in one span.
    void evaluate(std::vector<double> const & places, sdkSplineBasis & along_u);

    // Goes to the row at this v, of which nothing behind this u will be asked for.
    void move_to(double v, double u_last);

    // Of the row where it is, at the places of a basis.
    void points(sdkSplineBasis const & along_u, std::vector<sdkSurfacePoint> & points) const;

private:
    struct Pole {
        gp_XYZ point; // times the weight
        double weight = 0;
    };
    // Of the row, which is a curve along u.
    struct RowPole {
        Pole value;
        Pole along_v;
    };
    // What the surface has along one parameter.
    struct Direction {
        Direction(TColStd_Array1OfReal const & knots, int degree, double its_period, double part_first,
                  double part_last);

        // The parameter in the turn that the knots describe.
        double in_turn(double parameter) const;

        sdkSplineAxis axis;
        double first;
        double period; // 0 where it has none
        // Those that are copied.
        std::size_t first_pole;
        std::size_t poles;
    };

    void copy_poles(gp_Trsf const & place);

    Handle(Geom_BSplineSurface) m_surface; // not periodic
    bool m_rational;
    Direction m_u;
    Direction m_v;
    std::vector<Pole> m_poles; // by u, and in each by v
    std::vector<RowPole> m_row;
    std::vector<double> m_places;
    sdkSplineBasis m_along_v;
};
