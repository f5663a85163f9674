#pragma once

#include "sdk/sdkDocument.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkPromise.h"

#include <vector>

// For the triangles of modules that do not say how closely they follow surfaces, in millimetres.
inline constexpr double sdk_usual_deflection = 0.1;

// How triangles of an output follow the surfaces of its source, or its triangles: what lies farther off than
// the deflection promised, what reaches beyond the source, and sides of triangles without a neighbour that
// the source does not have. Also for surfaces that stand in place of the triangles of a source; these and
// triangles of triangles may differ by rounding only.
void sdk_compare_mesh(sdkDocument const & source, sdkDocument const & output, sdkPromise const & promise,
                      std::vector<sdkFinding> & findings);
