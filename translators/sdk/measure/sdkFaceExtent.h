#pragma once

#include "sdk/measure/sdkTightExtent.h"

#include <TopoDS_Face.hxx>

// Where the surface of the face bulges beyond the edges. Nothing of a face that has no end.
void sdk_add_face(TopoDS_Face const & face, sdkTightExtent & extent);
