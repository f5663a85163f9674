#pragma once

#include "sdk/sdkContext.h"

#include <Standard_Handle.hxx>
#include <TColStd_MapOfTransient.hxx>

class XSControl_WorkSession;

// Counts in the account what the file of the session holds, and adds a finding for whatever was to become a
// shape and has not: roots, what groups and subfigures gather, and faces of solids. Each of these
// counts as failed. Entities that are not to be seen are passed over when
// only visible ones were read. To be called after the transfer.
// `told` are entities that were left out with a finding of their own.
void iges_keep_account(Handle(XSControl_WorkSession) const & session, bool visible_only,
                       TColStd_MapOfTransient const & told, sdkContext & context);
