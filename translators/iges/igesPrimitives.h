#pragma once

#include <Standard_Handle.hxx>
#include <TopoDS_Shape.hxx>

#include <functional>

class IGESData_IGESEntity;

// Solids that a file describes by their dimensions: block, right angular wedge, cylinder, cone frustum,
// sphere and torus (types 150 to 160), and those that a closed plane curve leaves behind as it turns or moves
// (types 162 and 164). The toolkit reads these entities and makes no shapes of them.
bool iges_is_primitive(Handle(IGESData_IGESEntity) const & entity);

// The solid where the entity's own dimensions put it, in millimetres, without the transformation that the
// entity may refer to. The curve of a swept solid comes from outside, in millimetres. Null when the
// dimensions give no solid.
TopoDS_Shape iges_primitive(Handle(IGESData_IGESEntity) const & entity, double millimetres_per_unit,
                            std::function<TopoDS_Shape(Handle(IGESData_IGESEntity) const &)> const & curve);
