#pragma once

#include "sdk/sdkContext.h"

#include <Standard_Handle.hxx>

#include <cstdint>
#include <functional>
#include <string>

class Standard_Transient;
class Standard_Type;
class Transfer_FinderProcess;
class XSControl_WorkSession;

// True for entities of which the user is told elsewhere.
using sdkToldElsewhere = std::function<bool(Handle(Standard_Transient) const & entity)>;

// Tells the user which entities of the file that the session has parsed are not as the standard has them: the
// first few of those that shapes need one by one, of all others the number.
void sdk_report_load(Handle(XSControl_WorkSession) const & session, sdkContext & context,
                     sdkToldElsewhere const & told = {});

// Tells the user which entities could not be converted to shapes, the first few one by one. Those of the
// given kind are counted as failed; none are when it is null.
void sdk_report_transfer(Handle(XSControl_WorkSession) const & session, Handle(Standard_Type) const & counted,
                         sdkContext & context, sdkToldElsewhere const & told = {});

// Tells the user which shapes could not be converted to entities, the first few one by one, and returns the
// number of faces among them.
std::int64_t sdk_report_transfer(Handle(Transfer_FinderProcess) const & process, sdkContext & context);

// The kinds of entities of which the file has some and that are not known here, the most frequent first, up
// to three, as "TESSELLATED_SOLID, COORDINATES_LIST"; empty when there are none.
std::string sdk_unknown_kinds(Handle(XSControl_WorkSession) const & session);
