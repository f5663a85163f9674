#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <vector>

// Names of assemblies, and names that places have of their own, of which the output has fewer than the
// source. That it has more is no difference.
void sdk_compare_structure_names(sdkInventory const & source, sdkInventory const & output,
                                 sdkPromise const & promise, std::vector<sdkFinding> & findings);

// The same for two models of which neither is the source of the other: names of which one has fewer.
void sdk_compare_structure_names(sdkInventory const & a, sdkInventory const & b,
                                 std::vector<sdkFinding> & findings);
