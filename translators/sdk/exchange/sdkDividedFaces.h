#pragma once

#include "sdk/geometry/sdkPartEdit.h"

#include <TopoDS_Face.hxx>

#include <functional>
#include <optional>

// The shape with those of its faces divided, where their surface is closed, that `chosen` says. Nothing where
// there is no such face, the division fails, or the shape is worse by measure afterwards. The history is told
// what became of what.
std::optional<TopoDS_Shape> sdk_divide_faces(TopoDS_Shape const & shape,
                                             std::function<bool(TopoDS_Face const &)> const & chosen,
                                             sdkShapeHistory & history);
