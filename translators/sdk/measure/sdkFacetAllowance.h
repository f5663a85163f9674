#pragma once

#include "sdk/measure/sdkInventory.h"

// How much the area of triangles may differ from that of the surfaces which they follow at `deflection`, in
// mm2. Chords are shorter than their arcs: by a third of their sagitta, times the curvature, of surfaces, and
// plane faces lose no more than the deflection along the edges that are bent. So there is nothing for planes
// with straight edges, and never more than a tenth of the area.
double sdk_facet_allowance(sdkInventory const & source, double deflection);
