#pragma once

#include "sdk/sdkDocument.h"

#include <StepRepr_RepresentationItem.hxx>
#include <TDF_LabelSequence.hxx>

#include <cstdint>
#include <vector>

class Interface_Graph;
class Interface_InterfaceModel;
class XSControl_WorkSession;
class stepInstances;
class stepInstanceStyles;

// What a style or a layer is given to: the item itself, or that of the style that stands for it. Null for a
// style that speaks of its item in a single instance only.
Handle(StepRepr_RepresentationItem)
    step_item_of(Handle(Standard_Transient) const & item, Interface_Graph const & graph);

// What the file hides through styles and layers wherever it is; not what it hides in single instances.
std::vector<Handle(StepRepr_RepresentationItem)>
step_hidden_items(Handle(Interface_InterfaceModel) const & model, Interface_Graph const & graph);

// The label of a shape that is a part, or of one within a part, which is made if need be; null when the
// document does not have the shape.
TDF_Label step_label_of(sdkDocument & document, TopoDS_Shape const & shape);

// Hides in the document what the file hides through styles and layers, after the transfer. The toolkit does
// so for styles when it reads colours and for layers when it reads layers; this is for where it does not.
void step_read_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument & document,
                          stepInstances const & instances);

// Hides in the model that the session has made of the document each part and sub-shape that the document
// hides and the model does not yet: the toolkit knows parts only, and only when it writes colours. Hides
// these instances, too; their styles come from that. Returns how many of the instances the model does not
// have, which stay visible.
std::int64_t step_write_visibility(Handle(XSControl_WorkSession) const & session,
                                   sdkDocument const & document, TDF_LabelSequence const & instances,
                                   stepInstanceStyles & styles);
