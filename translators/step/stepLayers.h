#pragma once

#include "sdk/sdkDocument.h"

#include <cstdint>

class Interface_Graph;
class Interface_InterfaceModel;
class stepInstances;
class stepInstanceStyles;

// Puts the shapes that have a style on the layers of their styles: files may assign a layer to either, and
// Open CASCADE takes notice of shapes only. A style that speaks of a single instance stays what it is. Call
// it before the shapes are transferred. Returns how many layers have no name.
std::int64_t step_prepare_layers(Handle(Interface_InterfaceModel) const & model,
                                 Interface_Graph const & graph);

// Puts instances on the layers on which the file has them alone, after the transfer.
void step_read_layers_of_instances(Handle(Interface_InterfaceModel) const & model,
                                   stepInstances const & instances, sdkDocument & document);

// Puts the instances that have layers of their own on these layers in the model that was made of the
// document. The toolkit writes the layers of parts and shapes only.
void step_write_layers_of_instances(Handle(Interface_InterfaceModel) const & model,
                                    sdkDocument const & document, stepInstanceStyles & styles);
