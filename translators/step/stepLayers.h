#pragma once

#include <Standard_Handle.hxx>

#include <cstdint>

class Interface_InterfaceModel;

// Puts the shapes that have a style on the layers of their styles: files may assign a layer to either, and
// Open CASCADE takes notice of shapes only. Call it before the shapes are transferred. Returns how many
// layers have no name.
std::int64_t step_prepare_layers(Handle(Interface_InterfaceModel) const & model);
