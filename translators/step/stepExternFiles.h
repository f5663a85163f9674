#pragma once

#include "sdk/sdkContext.h"

#include <Standard_Handle.hxx>
#include <Standard_Transient.hxx>

#include <set>

class STEPCAFControl_Reader;

// Adds a loss for each file that an assembly keeps parts in and that could not be read, after the transfer.
// Returns the entities that name these files.
std::set<Standard_Transient const *> step_lose_absent_files(STEPCAFControl_Reader const & reader,
                                                            sdkContext & context);
