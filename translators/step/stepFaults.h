#pragma once

#include <Standard_Handle.hxx>

#include <string>

class Interface_InterfaceModel;
class Standard_Transient;

// True for kinds of entities that shapes and the places of assemblies are made of.
bool step_is_part_of_shapes(Handle(Standard_Transient) const & entity);

// What is wrong with such an entity, by its number in the model: a reference to nothing or
// to something else, a number that is none, a list that is too short. Empty when it can be used, also where a
// name or another thing that no shape needs is not as the standard has it.
std::string step_fault(Handle(Interface_InterfaceModel) const & model, int number);
