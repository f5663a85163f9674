#pragma once

#include "sdk/measure/sdkSurfacePatches.h"

class Geom2dAdaptor_Curve;

// The spans of a way through the parameters of a surface, divided where it passes from one patch of the
// surface into another and, of a straight way, where the surface bends far along it.
sdkSpans sdk_spans_through(sdkSurfacePatches const & patches, Geom2dAdaptor_Curve const & way,
                           sdkSpans const & spans);
