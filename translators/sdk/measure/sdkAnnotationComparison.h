#pragma once

#include "sdk/sdkAnnotations.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <vector>

// Holds the annotations of an output against those of its source, as sets: what each says, and the shapes
// that it is attached to by measure and place. Those that the promise calls lost are not looked for; where it
// promises none nothing is compared.
void sdk_compare_annotations(sdkDocument const & source, sdkDocument const & output,
                             sdkPromise const & promise, std::vector<sdkFinding> & findings);
