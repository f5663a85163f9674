#pragma once

#include <Standard_Handle.hxx>

class XSControl_WorkSession;

// Takes the styles away from items whose styles cannot be read whole: Open CASCADE follows them to the colour
// without a look. The items lose their colour and keep their shape.
void step_drop_damaged_styles(Handle(XSControl_WorkSession) const & session);
