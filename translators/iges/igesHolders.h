#pragma once

#include <IGESData_IGESEntity.hxx>

#include <functional>

// Entities that can do without some of their members: shells, groups, definitions of subfigures.
bool iges_is_holder(Handle(IGESData_IGESEntity) const & entity);

// True for a shell that lacks some of its faces.
bool iges_has_gaps(Handle(IGESData_IGESEntity) const & entity);

// Takes members out: those that are null and those for which the function says so. True when none is left.
bool iges_drop_members(Handle(IGESData_IGESEntity) const & holder,
                       std::function<bool(Handle(IGESData_IGESEntity) const & member)> const & drop);
