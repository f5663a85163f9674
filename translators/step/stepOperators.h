#pragma once

#include <StepData_StepModel.hxx>

#include <set>
#include <string_view>

// Some programs write transformation operators without the name and the description of a functionally defined
// transformation, which the standard puts behind the first name. Open CASCADE then reads nothing of them.
// Fills in these operators from the text and returns them.
std::set<Standard_Transient const *> step_complete_operators(Handle(StepData_StepModel) const & model,
                                                             std::string_view text);
