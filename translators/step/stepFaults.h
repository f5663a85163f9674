#pragma once

#include <Standard_Handle.hxx>

#include <string>

class Interface_InterfaceModel;
class Standard_Transient;

// True for kinds of entities that shapes and the places of assemblies are made of.
bool step_is_part_of_shapes(Handle(Standard_Transient) const & entity);

// True for an edge, curve or surface that is described by another one, and this by yet another, without end.
bool step_is_made_of_itself(Handle(Standard_Transient) const & entity);

// What the library could not read of an entity, by its number in the model, so that it lacks something that
// it has to have. Empty when there is nothing, also where a name is not as the standard has it.
std::string step_load_fault(Handle(Interface_InterfaceModel) const & model, int number);

// What is wrong with such an entity, by its number in the model: a reference to nothing or
// to something else, a number that is none, a list that is too short. Empty when it can be used, also where a
// name or another thing that no shape needs is not as the standard has it.
std::string step_fault(Handle(Interface_InterfaceModel) const & model, int number);
