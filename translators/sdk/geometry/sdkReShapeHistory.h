#pragma once

#include "sdk/geometry/sdkPartEdit.h"

#include <ShapeBuild_ReShape.hxx>

// Tells the history what a repair of the toolkit made of a shape and of all within it.
void sdk_remember(TopoDS_Shape const & shape, Handle(ShapeBuild_ReShape) const & context,
                  sdkShapeHistory & history);
