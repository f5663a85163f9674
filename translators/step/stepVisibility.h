#pragma once

#include "sdk/sdkDocument.h"

#include <StepRepr_RepresentationItem.hxx>

#include <vector>

class Interface_InterfaceModel;
class XSControl_WorkSession;

// What a style or a layer is given to: the item itself, or that of the style that stands for it.
Handle(StepRepr_RepresentationItem) step_item_of(Handle(Standard_Transient) const & item);

// What the file hides through styles and layers.
std::vector<Handle(StepRepr_RepresentationItem)> step_hidden_items(Handle(Interface_InterfaceModel)
                                                                       const & model);

// The label of a shape that is a part, or of one within a part, which is made if need be; null when the
// document does not have the shape.
TDF_Label step_label_of(sdkDocument & document, TopoDS_Shape const & shape);

// Hides in the document what the file hides through styles and layers, after the transfer. The toolkit does
// so for styles when it reads colours and for layers when it reads layers; this is for where it does not.
void step_read_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument & document);

// Hides in the model that the session has made of the document each part and sub-shape that the document
// hides and the model does not yet: the toolkit knows parts only, and only when it writes colours.
void step_write_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument const & document);
