#pragma once

#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"

#include <string>
#include <vector>

// What of two models is held against each other besides their geometry.
struct sdkModelAttributes {
    bool names = true;
    bool colours = true;
    bool layers = true;
    bool visibility = true;
    bool structure = true;
    // Both come from the same format, so that each can hold what the other holds: faces that are divided or
    // loose in one of them are a difference.
    bool same_format = false;
    // Names of the files without folders and extensions. Readers of formats without names call parts so, and
    // two parts of which each is called after its file are called alike.
    std::string file_a = {};
    std::string file_b = {};
};

// A body of each of two models; null where one of them has no such body.
struct sdkComparedBody {
    sdkBody const * a = nullptr;
    sdkBody const * b = nullptr;
    bool same = false; // in all that was compared
};

// The bodies belong to the inventories compared.
struct sdkModelComparison {
    std::vector<sdkComparedBody> bodies;
    // Notes and differences: nothing is lost, because neither model is the source of the other. The source
    // amount is that of A, the output amount that of B.
    std::vector<sdkFinding> findings;
};

// True when one model has triangles only and the other has surfaces, so that no body of one can be the like
// of a body of the other.
bool sdk_triangles_against_surfaces(sdkInventory const & a, sdkInventory const & b);

// Holds two models against each other body by body: by name, place and measure. Not for triangles against
// surfaces, of which only curves and points are compared. Inventories that were only counted are compared by
// counts and names.
sdkModelComparison sdk_compare_models(sdkInventory const & a, sdkInventory const & b,
                                      sdkTolerances const & tolerances,
                                      sdkModelAttributes const & attributes);
