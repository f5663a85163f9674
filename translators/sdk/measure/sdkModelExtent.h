#pragma once

#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkDocument.h"

#include <Bnd_Box.hxx>

// The smallest box, along the axes, round all that the document holds, with surfaces that bulge between their
// edges; unlike the extent of the inventory, which is that of the edges. Faces without a surface and
// unbounded ones have the extent of their triangles and edges. Takes long on curved surfaces.
Bnd_Box sdk_model_extent(sdkDocument const & document, sdkInventory const & inventory);
