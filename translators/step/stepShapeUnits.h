#pragma once

#include "sdk/sdkContext.h"

#include <Standard_Handle.hxx>

class Interface_InterfaceModel;

// Tells the user the length units that the shapes of a file are in, each once. Adds a note when there are
// several, and when shapes have none, so that millimetres are assumed.
void step_report_units(Handle(Interface_InterfaceModel) const & model, sdkContext & context);
