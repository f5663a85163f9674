#pragma once

#include <TColStd_Array1OfReal.hxx>

#include <cstddef>
#include <vector>

// The basis functions of a spline that are not zero in one span of it, and their first derivatives, at some
// places.
struct sdkSplineBasis {
    std::size_t first_pole = 0; // counted from 0, that of the first function
    std::size_t functions = 0;  // as many as the degree and one
    std::size_t places = 0;
    // By function, and in each by place.
    std::vector<double> values;
    std::vector<double> slopes;
};

// One parameter of a spline that is not periodic: its knots and its degree. Many places in one span cost
// little more than one. Any thread.
class sdkSplineAxis {
public:
    // The knots as often as they count, of which there are as many as poles, the degree and one.
    sdkSplineAxis(TColStd_Array1OfReal const & flat_knots, int degree);

    // As many are not zero in a span.
    std::size_t functions() const { return m_degree + 1; }

    // The pole of the first function that is not zero at this place, counted from 0.
    std::size_t first_pole(double place) const;

    // For places in one span, that of the middle between the first and the last of them. Places before the
    // first and after the last span take its polynomials. Keeps the memory of the basis that was there.
    void evaluate(std::vector<double> const & places, sdkSplineBasis & basis) const;

private:
    std::vector<double> m_knots;
    std::size_t m_degree;
};
