#pragma once

#include <Standard_Handle.hxx>

#include <ostream>

class StepData_Protocol;
class StepData_StepModel;

// Writes a model as the text of a STEP file, some thousand entities at a time: Open CASCADE by itself makes
// the whole text in memory first, several times as large as the file. What goes wrong is known to the stream.
void step_write_text(Handle(StepData_StepModel) const & model, Handle(StepData_Protocol) const & protocol,
                     std::ostream & stream);
