#pragma once

#include "sdk/sdkDocument.h"

#include <cstdint>

class Transfer_TransientProcess;
class XSControl_WorkSession;

// Hides in the document what the file hides through styles and layers, after the transfer. The toolkit does
// so for styles when it reads colours and for layers when it reads layers; this is for where it does not.
void step_read_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument & document);

// Hides in the model that the session has made of the document each part and sub-shape that the document
// hides and the model does not yet: the toolkit knows parts only, and only when it writes colours.
void step_write_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument const & document);
