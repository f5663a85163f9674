#pragma once

#include <utility>
#include <vector>

// The places between -1 and 1, and the weights, of Gauss-Legendre quadrature with so many points, from 1
// to 61. Exact for polynomials of twice that degree less one. Any thread.
std::vector<std::pair<double, double>> const & sdk_gauss_rule(int points);

// How many points integrate the moments of a patch of this degree: that of its volume has four times the
// degree in it; the root in its area wants a few more where the degree is low.
int sdk_gauss_points(int degree);
