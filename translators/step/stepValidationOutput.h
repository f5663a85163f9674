#pragma once

#include "sdk/sdkDocument.h"

class XSControl_WorkSession;

// Adds to the model that the session has made of the document the volume, the surface area and the centroid
// of each part and assembly, as geometric validation properties in the length unit of its shapes. They are
// measured anew: what a source has stated may be that of other shapes. Returns for how many products they
// were added.
std::int64_t step_add_validation(Handle(XSControl_WorkSession) const & session, sdkDocument const & document);
