#include "sdk/measure/sdkPatchCrossings.h"

#include <Geom2dAdaptor_Curve.hxx>

#include <algorithm>
#include <cmath>

namespace {

sdkSpans straight(sdkSurfacePatches const & patches, gp_Lin2d const & line, sdkSpans const & ends)
{
    double const slope = line.Direction().Y();
    double const at_zero = line.Location().Y();
    bool const oblique = std::abs(line.Direction().X()) > 1e-12;
    sdkSpans spans = ends;
    for (double const v : patches.v_borders()) {
        double const t = (v - at_zero) / slope;
        if (t > ends.front() && t < ends.back()) {
            spans.push_back(t);
        }
    }
    std::sort(spans.begin(), spans.end());
    if (!patches.smooth() && patches.type() != GeomAbs_BSplineSurface && oblique) {
        return sdk_divided(spans, sdk_pieces_of_unknown);
    }
    bool const arcs = patches.round_in_v() || (patches.round_in_u() && oblique);
    return arcs ? sdk_divided_arcs(spans) : spans;
}

// Where the coordinate reaches the value, by bisection; at one of the two places it is below, at the other
// not.
template <class Coordinate>
double crossing(double from, double to, double value, Coordinate const & coordinate)
{
    bool const below = coordinate(from) < value;
    for (int step = 0; step < 40; ++step) {
        double const middle = (from + to) / 2;
        ((coordinate(middle) < value) == below ? from : to) = middle;
    }
    return (from + to) / 2;
}

template <class Coordinate>
void add_crossings(sdkSpans const & borders, sdkSpans const & places, Coordinate const & coordinate,
                   sdkSpans & spans)
{
    double before = coordinate(places.front());
    for (std::size_t at = 0; at + 1 < places.size(); ++at) {
        double const after = coordinate(places[at + 1]);
        for (double const border : borders) {
            if ((before < border) != (after < border)) {
                spans.push_back(crossing(places[at], places[at + 1], border, coordinate));
            }
        }
        before = after;
    }
}

sdkSpans bent(sdkSurfacePatches const & patches, Geom2dAdaptor_Curve const & way, sdkSpans const & ends)
{
    // Between two of these places it crosses no line twice, or so little of it that it does not matter.
    constexpr int looks = 4;
    sdkSpans spans = ends;
    auto const places = sdk_divided(ends, looks);
    add_crossings(
        patches.u_borders(), places, [&](double t) { return way.Value(t).X(); }, spans);
    add_crossings(
        patches.v_borders(), places, [&](double t) { return way.Value(t).Y(); }, spans);
    std::sort(spans.begin(), spans.end());
    return spans;
}

} // namespace

sdkSpans sdk_spans_through(sdkSurfacePatches const & patches, Geom2dAdaptor_Curve const & way,
                           sdkSpans const & spans)
{
    return way.GetType() == GeomAbs_Line ? straight(patches, way.Line(), spans) : bent(patches, way, spans);
}
