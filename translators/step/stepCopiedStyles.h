#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"
#include "step/stepMappings.h"

class XSControl_WorkSession;

// Gives copies of mapped geometry the colours and layers that the file gives to the geometry itself, and
// hides what it hides, as far as the options of the context ask for them. The toolkit knows nothing of the
// copies. Call it after the transfer.
void step_style_copies(Handle(XSControl_WorkSession) const & session,
                       std::vector<stepMappings::Copy> const & copies, sdkDocument & document,
                       sdkOptions const & options);
