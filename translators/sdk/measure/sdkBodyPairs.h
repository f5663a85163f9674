#pragma once

#include "sdk/measure/sdkBody.h"

#include <cstddef>
#include <utility>
#include <vector>

// How much two bodies that are the same may differ: relative to volume, area and length, and in millimetres.
struct sdkTolerances {
    double relative = 1.0e-6;
    double absolute = 1.0e-4;

    bool same_amount(double a, double b) const;
    // Places of bodies of that size.
    bool same_place(gp_Pnt const & a, gp_Pnt const & b, double size) const;
    // Second moments of that much area or length, of bodies of that size.
    bool same_moments(gp_Mat const & a, gp_Mat const & b, double amount, double size) const;
};

// How far a point lies along a direction in which the rows of a grid do not fall together. Never farther from
// that of another point than the two are apart.
double sdk_skew_place(gp_Pnt const & point);

// True when the two have the same measure and place, whatever they are called.
bool sdk_same_body(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances);

using sdkBodies = std::vector<sdkBody const *>;

// Which body of an output stands for which of its source.
struct sdkBodyPairs {
    std::vector<std::pair<sdkBody const *, sdkBody const *>> same;  // by sdk_same_body
    std::vector<std::pair<sdkBody const *, sdkBody const *>> other; // by name and by what is nearest
    // Bodies of the source that lie where one of "same" lies, and its counterpart: the output has one of
    // them.
    std::vector<std::pair<sdkBody const *, sdkBody const *>> coincident;
    sdkBodies missing; // in the source only
    sdkBodies extra;   // in the output only
};

// Of bodies of one kind. Where several could be meant, those that look to the same side, then those that
// share a name and colours come first.
sdkBodyPairs sdk_pair_bodies(sdkBodies const & source, sdkBodies const & output,
                             sdkTolerances const & tolerances);
