#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <vector>

// Names, colours, layers and visibility of one body and its counterpart, as far as the output holds them.
void sdk_compare_attributes(sdkBody const & source, sdkBody const & output, sdkPromise const & promise,
                            std::vector<sdkFinding> & findings);

// All names of the parts, wherever they stand.
void sdk_compare_names(sdkInventory const & source, sdkInventory const & output, sdkPromise const & promise,
                       std::vector<sdkFinding> & findings);

// Assemblies and places in them.
void sdk_compare_structure(sdkInventory const & source, sdkInventory const & output,
                           std::vector<sdkFinding> & findings);
