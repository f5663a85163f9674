#pragma once

#include "sdk/measure/sdkGaussRule.h"

#include <cstddef>
#include <vector>

// Ends of adjoining spans of a parameter, in order: something is smooth between each two of them.
using sdkSpans = std::vector<double>;

// What a curve or surface of unknown kind does between its knots, nobody can tell from outside; this many
// pieces are enough for a full turn.
constexpr int sdk_pieces_of_unknown = 8;

// Every span in so many equal pieces.
sdkSpans sdk_divided(sdkSpans const & spans, int pieces);

// Every span in equal pieces that are short enough for the quadrature of trigonometric functions of it.
sdkSpans sdk_divided_arcs(sdkSpans const & spans);

// Calls add(place, weight) for so many points in each of the spans, one after the other.
template <class Add>
void sdk_for_points(sdkSpans const & spans, int points, Add const & add)
{
    auto const & rule = sdk_gauss_rule(points);
    for (std::size_t at = 0; at + 1 < spans.size(); ++at) {
        double const half = (spans[at + 1] - spans[at]) / 2;
        double const middle = (spans[at + 1] + spans[at]) / 2;
        for (auto const & [place, weight] : rule) {
            add(middle + half * place, half * weight);
        }
    }
}
