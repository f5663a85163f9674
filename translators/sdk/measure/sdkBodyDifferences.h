#pragma once

#include "sdk/measure/sdkModelComparison.h"

#include <vector>

// How two bodies differ that stand for each other in two models of which neither is the source of the other.
// Each function appends what it finds.

// Volume, area and place; for bodies that are not the same by sdk_same_body.
void sdk_tell_geometry(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances,
                       std::vector<sdkFinding> & findings);

// Shells, open edges, turned faces, and edges off their surfaces.
void sdk_tell_topology(sdkBody const & a, sdkBody const & b, sdkTolerances const & tolerances,
                       sdkModelAttributes const & attributes, std::vector<sdkFinding> & findings);

// Names, colours, layers and visibility, as far as they are asked for.
void sdk_tell_attributes(sdkBody const & a, sdkBody const & b, sdkModelAttributes const & attributes,
                         std::vector<sdkFinding> & findings);

// Names that parts of only one of the models have.
void sdk_compare_part_names(sdkInventory const & a, sdkInventory const & b,
                            sdkModelAttributes const & attributes, std::vector<sdkFinding> & findings);

// Puts what was found out about an output and its source in words for two models side by side.
void sdk_tell_side_by_side(sdkFinding & finding, bool same_format);
