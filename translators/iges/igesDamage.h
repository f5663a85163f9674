#pragma once

#include "sdk/sdkContext.h"

#include <IGESData_IGESModel.hxx>
#include <TColStd_MapOfTransient.hxx>

#include <map>
#include <string>
#include <vector>

class Interface_Graph;
class XSControl_WorkSession;

// A number that is none, by the sequence number of its entity in the directory.
using igesBadNumbers = std::map<int, std::string>;

// Takes damaged entities of a file, and all that needs them, out of the shells, groups and subfigures that
// have them, before anything is made of them: Open CASCADE would crash or go on for ever. Tells the user of
// each, and counts it as failed. Returns the damaged entities, of which the roots must not be translated.
TColStd_MapOfTransient iges_take_out_damage(Handle(XSControl_WorkSession) const & session,
                                            igesBadNumbers const & numbers, sdkContext & context);
