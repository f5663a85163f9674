#pragma once

#include <Standard_Handle.hxx>
#include <TopoDS_Shape.hxx>

class STEPControl_ActorRead;
class Standard_Transient;
class Transfer_TransientProcess;

// The solid that an area or a face sweeps along a direction or about an axis (EXTRUDED_AREA_SOLID,
// REVOLVED_AREA_SOLID and those of faces), in millimetres; a null shape when the entity is none or its
// numbers describe no solid. The units of its representation must have been prepared.
TopoDS_Shape step_swept_solid(Handle(Standard_Transient) const & entity,
                              Handle(STEPControl_ActorRead) const & actor,
                              Handle(Transfer_TransientProcess) const & process);

bool step_is_swept_solid(Handle(Standard_Transient) const & entity);
