#pragma once

#include <Standard_Handle.hxx>

#include <cstdint>

class Interface_InterfaceModel;

// For how many products the file states a material or a density.
std::int64_t step_count_materials(Handle(Interface_InterfaceModel) const & model);
