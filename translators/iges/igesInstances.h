#pragma once

#include <IGESData_IGESEntity.hxx>
#include <TopoDS_Shape.hxx>

#include <functional>
#include <vector>

// The entities that a group (type 402) or the definition of a subfigure (308) gathers, or the definition that
// an instance (408) places; none for others.
std::vector<Handle(IGESData_IGESEntity)> iges_members(Handle(IGESData_IGESEntity) const & entity);

// An instance of a subfigure with a scale other than 1.
bool iges_is_scaled_instance(Handle(IGESData_IGESEntity) const & entity);

// An instance of a solid (type 430) or an assembly of solids (184).
bool iges_is_solid_instance(Handle(IGESData_IGESEntity) const & entity);

// The shape of one of these three, in millimetres, without the transformation that the entity may refer to.
// The shapes of others come from outside. Null when these give none, or not all. Places may scale.
TopoDS_Shape iges_instance(Handle(IGESData_IGESEntity) const & entity, double millimetres_per_unit,
                           std::function<TopoDS_Shape(Handle(IGESData_IGESEntity) const &)> const & shape_of);

// The shape at the place where the transformation of the entity puts it.
TopoDS_Shape iges_placed(TopoDS_Shape const & shape, Handle(IGESData_IGESEntity) const & entity,
                         double millimetres_per_unit);
