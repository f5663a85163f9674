#pragma once

#include "sdk/sdkDocument.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <vector>

// For the triangles of modules that do not say how closely they follow surfaces, in millimetres.
inline constexpr double sdk_usual_deflection = 0.1;

// How the triangles of an output follow the surfaces of its source: what lies farther off than the deflection
// promised, and sides of triangles without a neighbour where the source is closed.
void sdk_compare_mesh(sdkDocument const & source, sdkDocument const & output, sdkPromise const & promise,
                      std::vector<sdkFinding> & findings);
