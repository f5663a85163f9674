#pragma once

#include <utility>
#include <vector>

// The places between -1 and 1, and the weights, of Gauss-Legendre quadrature with so many points, from 1
// to 61. Exact for polynomials of twice that degree less one. Any thread.
std::vector<std::pair<double, double>> const & sdk_gauss_rule(int points);
