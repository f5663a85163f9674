#include "sdk/measure/sdkSpans.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// Trigonometric functions over more than this want more points than the rules here have.
constexpr double longest_arc = std::numbers::pi / 4;

void add_pieces(double from, double length, int pieces, sdkSpans & spans)
{
    for (int piece = 0; piece < pieces; ++piece) {
        spans.push_back(from + length * piece / pieces);
    }
}

} // namespace

sdkSpans sdk_divided(sdkSpans const & spans, int pieces)
{
    sdkSpans all;
    for (std::size_t at = 0; at + 1 < spans.size(); ++at) {
        add_pieces(spans[at], spans[at + 1] - spans[at], pieces, all);
    }
    all.push_back(spans.back());
    return all;
}

sdkSpans sdk_divided_arcs(sdkSpans const & spans)
{
    sdkSpans all;
    for (std::size_t at = 0; at + 1 < spans.size(); ++at) {
        double const length = spans[at + 1] - spans[at];
        // A little more than the longest arc does not make two of one.
        auto const pieces = static_cast<int>(std::ceil(std::abs(length) / longest_arc - 1e-9));
        add_pieces(spans[at], length, std::max(1, pieces), all);
    }
    all.push_back(spans.back());
    return all;
}
