#pragma once

#include <Standard_Handle.hxx>

#include <optional>

class Standard_Transient;
class StepBasic_NamedUnit;
class StepRepr_RepresentationContext;

// A unit of length, area or volume: millimetres to the power of its dimension.
struct stepUnit {
    double factor = 1;
    double dimension = 1;
};

// The unit of a named or derived unit; nothing for one that is not made of lengths or is not understood.
std::optional<stepUnit> step_unit(Handle(Standard_Transient) const & unit);

// The unit of length of the coordinates in a representation; null when its context states none.
Handle(StepBasic_NamedUnit) step_length_unit(Handle(StepRepr_RepresentationContext) const & context);
