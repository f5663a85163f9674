#pragma once

#include <Standard_Handle.hxx>

#include <string>

class Standard_Transient;

// What is wrong with the lists of a B-spline curve or surface: Open CASCADE takes it that there are as many
// multiplicities as knots and as many weights as control points. Empty for all else.
std::string step_spline_fault(Handle(Standard_Transient) const & entity);
