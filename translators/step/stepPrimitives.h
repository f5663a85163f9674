#pragma once

#include <Standard_Handle.hxx>
#include <TopoDS_Shape.hxx>

class Standard_Transient;

// The solid of a primitive of constructive solid geometry, in millimetres, with the place and extent that ISO
// 10303-42 gives it; a null shape when the entity is none, or when its numbers describe no solid. The units
// of its representation must have been prepared.
TopoDS_Shape step_primitive(Handle(Standard_Transient) const & entity);

bool step_is_primitive(Handle(Standard_Transient) const & entity);
