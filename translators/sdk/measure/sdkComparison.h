#pragma once

#include "sdk/measure/sdkBodyPairs.h"
#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <string>
#include <vector>

struct sdkComparisonOptions {
    sdkTolerances tolerances;
    // What the output can hold; what it cannot is not looked for.
    sdkPromise promise;
};

// How an output differs from its source: a finding for each difference and loss, empty when they agree within
// the tolerances. Inventories that were only counted are compared by their counts and names.
std::vector<sdkFinding> sdk_compare(sdkInventory const & source, sdkInventory const & output,
                                    sdkComparisonOptions const & options);
