#pragma once

#include "sdk/sdkResult.h"

#include <Standard_Handle.hxx>

#include <string>

class XSControl_WorkSession;

// Looks at how products use each other as components, and representations each other as mapped items, before
// anything is made of them. An error, which names products and places, when a product contains itself; too
// big when they lie deeper within each other, or stand at more places, than can be translated.
sdkResult step_check_structure(Handle(XSControl_WorkSession) const & session, std::string const & file);
