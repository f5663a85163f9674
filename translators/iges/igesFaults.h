#pragma once

#include <IGESData_IGESModel.hxx>

#include <string>

// True for entities that hand damage on to those that refer to them: geometry, solids, and what gathers or
// places them.
bool iges_hands_on(Handle(IGESData_IGESEntity) const & entity);

// What is wrong with an entity, by its number in the model, such that Open CASCADE would follow it without a
// look: a part of a solid that was not read or names what its lists do not have, a boundary that is made of
// something else than curves. Empty when there is nothing.
std::string iges_fault(Handle(IGESData_IGESModel) const & model, int number);
