#pragma once

#include "sdk/sdkContext.h"

#include <Standard_Handle.hxx>

#include <cstdint>

class Interface_InterfaceModel;
class Standard_Type;
class Transfer_FinderProcess;
class Transfer_TransientProcess;

// Tells the user which entities of a file that was parsed are not as the standard has them, the first few one
// by one. Returns how many there are.
std::int64_t sdk_report_load(Handle(Interface_InterfaceModel) const & model, sdkContext & context);

// Tells the user which entities could not be converted to shapes, the first few one by one. Those of the
// given kind are counted as failed.
void sdk_report_transfer(Handle(Transfer_TransientProcess) const & process,
                         Handle(Interface_InterfaceModel) const & model,
                         Handle(Standard_Type) const & counted, sdkContext & context);

// Tells the user which shapes could not be converted to entities, the first few one by one, and returns the
// number of faces among them.
std::int64_t sdk_report_transfer(Handle(Transfer_FinderProcess) const & process, sdkContext & context);
