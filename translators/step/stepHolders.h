#pragma once

#include <Standard_Handle.hxx>
#include <Standard_Transient.hxx>

#include <functional>
#include <vector>

// Entities that can do without some of their members: shells, sets of curves and surfaces, surface models of
// several shells, representations.
bool step_is_holder(Handle(Standard_Transient) const & entity);

// True when a member could not be read and is null.
bool step_has_gaps(Handle(Standard_Transient) const & holder);

// Takes members out: those that are null and those for which the function says so. True when none is left.
bool step_drop_members(Handle(Standard_Transient) const & holder,
                       std::function<bool(Handle(Standard_Transient) const & member)> const & drop);

// A representation without items is one; the library knows no other holder without members.
bool step_may_be_empty(Handle(Standard_Transient) const & holder);

// True for points and axes that only say where something is.
bool step_is_place(Handle(Standard_Transient) const & entity);

// The instances that have their place from this entity, which is none that they refer to.
std::vector<Handle(Standard_Transient)> step_instances_of(Handle(Standard_Transient) const & entity);
