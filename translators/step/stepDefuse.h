#pragma once

#include <Standard_Handle.hxx>

class Standard_Transient;

// Puts something empty where Open CASCADE asks what an entity refers to though the file does not have it, or
// asks an edge that is made of itself.
void step_defuse(Handle(Standard_Transient) const & entity);
