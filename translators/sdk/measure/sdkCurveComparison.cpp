#include "sdk/measure/sdkCurveComparison.h"

#include "sdk/measure/sdkAttributeComparison.h"
#include "sdk/measure/sdkFaceComparison.h"

#include <algorithm>
#include <set>

namespace {

// Several curves as one, with the attributes that all of them have.
sdkBody joined(sdkBodies const & curves)
{
    sdkBody whole = *curves.front();
    gp_XYZ moment;
    whole.measure.length = 0;
    whole.colours.clear();
    for (auto const * curve : curves) {
        whole.measure.length += curve->measure.length;
        moment += curve->measure.centroid.XYZ() * curve->measure.length;
        whole.measure.extent.Add(curve->measure.extent);
        for (auto const & [colour, length] : curve->colours) {
            whole.colours[colour] += length;
        }
        std::erase_if(whole.names, [&](auto const & name) { return curve->names.count(name) == 0; });
        std::erase_if(whole.layers, [&](auto const & layer) { return curve->layers.count(layer) == 0; });
    }
    if (whole.measure.length > 0) {
        whole.measure.centroid = moment / whole.measure.length;
    }
    // Steiner takes the moments of each to the centroid of all.
    whole.measure.moments = gp_Mat(0, 0, 0, 0, 0, 0, 0, 0, 0);
    for (auto const * curve : curves) {
        auto const & one = curve->measure;
        auto const arm = one.centroid.XYZ() - whole.measure.centroid.XYZ();
        for (int row = 1; row <= 3; ++row) {
            for (int column = 1; column <= 3; ++column) {
                whole.measure.moments.ChangeValue(row, column) +=
                    one.moments.Value(row, column) + one.length * arm.Coord(row) * arm.Coord(column);
            }
        }
    }
    return whole;
}

bool agree(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances)
{
    double const size = std::max(a.size(), b.size());
    return tolerances.same_amount(a.measure.length, b.measure.length) &&
           tolerances.same_place(a.measure.centroid, b.measure.centroid, size) &&
           tolerances.same_moments(a.measure.moments, b.measure.moments, a.measure.length, size);
}

// A curve is measured at some of its points, so a piece may reach a little beyond the whole.
bool may_be_part(sdkBody const & piece, sdkBody const & whole)
{
    auto box = whole.measure.extent;
    if (box.IsVoid() || piece.measure.extent.IsVoid()) {
        return false;
    }
    box.Enlarge(0.05 * whole.size() + 1.0e-4);
    return !box.IsOut(piece.measure.extent.CornerMin()) && !box.IsOut(piece.measure.extent.CornerMax());
}

void remove(sdkBodies & bodies, std::set<sdkBody const *> const & gone)
{
    std::erase_if(bodies, [&](auto const * body) { return gone.count(body) > 0; });
}

// Takes away wholes and the pieces that they consist of, the shortest first; tells `found` of each.
template <class Found>
void take_divided(sdkBodies & wholes, sdkBodies & pieces, sdkTolerances const & tolerances,
                  Found const & found)
{
    // More than these are not curves that were divided but another model.
    constexpr std::size_t most = 2'000;
    if (wholes.size() > most || pieces.size() > most) {
        return;
    }
    auto sorted = wholes;
    std::sort(sorted.begin(), sorted.end(),
              [](auto const * a, auto const * b) { return a->measure.length < b->measure.length; });
    std::set<sdkBody const *> gone;
    for (auto const * whole : sorted) {
        sdkBodies parts;
        std::copy_if(pieces.begin(), pieces.end(), std::back_inserter(parts),
                     [&](auto const * piece) { return may_be_part(*piece, *whole); });
        if (parts.size() < 2) {
            continue;
        }
        if (auto const together = joined(parts); agree(*whole, together, tolerances)) {
            found(*whole, together);
            gone.insert(whole);
            remove(pieces, {parts.begin(), parts.end()});
        }
    }
    remove(wholes, gone);
}

void tell_changed(sdkBody const & from, sdkBody const & to, sdkTolerances const & tolerances,
                  std::vector<sdkFinding> & findings)
{
    auto const & a = from.measure;
    auto const & b = to.measure;
    if (!tolerances.same_amount(a.length, b.length) && from.kind == sdkBodyKind::curve) {
        findings.push_back(
            {sdkWeight::difference, "length", from.part, from.place(), a.length, b.length,
             sdkText("measure::%s at %s is %.10g mm long in the source and %.10g mm in the output",
                     from.title(), from.place(), a.length, b.length)});
    } else {
        double const moved = a.centroid.Distance(b.centroid);
        findings.push_back(
            {sdkWeight::difference, "centroid", from.part, from.place(), 0, moved,
             sdkText("measure::%s at %s lies at %s in the output, %.6g mm away, or lies there otherwise",
                     from.title(), from.place(), to.place(), moved)});
    }
}

} // namespace

void sdk_compare_loose(sdkBodies const & source, sdkBodies const & output,
                       sdkComparisonOptions const & options, std::vector<sdkFinding> & findings)
{
    auto const & tolerances = options.tolerances;
    auto const attributes = [&](sdkBody const & from, sdkBody const & to) {
        sdk_compare_attributes(from, to, options.promise, findings);
    };
    auto const pairs = sdk_pair_bodies(source, output, tolerances);
    for (auto const & [from, to] : pairs.same) {
        attributes(*from, *to);
    }
    for (auto const & [from, to] : pairs.coincident) {
        sdk_tell_coincident(*from, findings);
        attributes(*from, *to);
    }
    auto missing = pairs.missing;
    auto extra = pairs.extra;
    for (auto const & [from, to] : pairs.other) {
        missing.push_back(from);
        extra.push_back(to);
    }
    take_divided(missing, extra, tolerances, attributes);
    take_divided(extra, missing, tolerances,
                 [&](sdkBody const & whole, sdkBody const & together) { attributes(together, whole); });
    // Curves that cross are not told apart by their extents.
    if (!missing.empty() && !extra.empty() && missing.front()->kind == sdkBodyKind::curve &&
        missing.size() + extra.size() > 2 && agree(joined(missing), joined(extra), tolerances)) {
        attributes(joined(missing), joined(extra));
        return;
    }
    for (auto const & [from, to] : pairs.other) {
        bool const both = std::count(missing.begin(), missing.end(), from) > 0 &&
                          std::count(extra.begin(), extra.end(), to) > 0;
        if (both) {
            tell_changed(*from, *to, tolerances, findings);
            attributes(*from, *to);
            remove(missing, {from});
            remove(extra, {to});
        }
    }
    sdk_tell_missing(missing, findings);
    sdk_tell_extra(extra, findings);
}
