#pragma once

#include <Standard_Handle.hxx>

#include <ostream>
#include <string_view>

class StepData_Protocol;
class StepData_StepModel;

// Writes a model as the text of a STEP file, some thousand entities at a time: Open CASCADE by itself makes
// the whole text in memory first, several times as large as the file. What goes wrong is known to the stream.
// More definitions, whose numbers follow those of the model, may come behind its own.
void step_write_text(Handle(StepData_StepModel) const & model, Handle(StepData_Protocol) const & protocol,
                     std::string_view more_definitions, std::ostream & stream);
