#include "step/stepText.h"

#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <StepData_WriterLib.hxx>

#include <algorithm>

namespace {

constexpr int entities_at_a_time = 5'000;

// What `fill` puts into a text goes to the stream.
template <class Fill>
void print(Handle(StepData_StepModel) const & model, std::ostream & stream, Fill fill)
{
    StepData_StepWriter text(model);
    fill(text);
    text.Print(stream);
}

} // namespace

void step_write_text(Handle(StepData_StepModel) const & model, Handle(StepData_Protocol) const & protocol,
                     std::string_view more_definitions, std::ostream & stream)
{
    // A header by itself comes without the line in front of it.
    stream << "ISO-10303-21;\n";
    print(model, stream, [&](StepData_StepWriter & text) { text.SendModel(protocol, Standard_True); });
    print(model, stream, [](StepData_StepWriter & text) { text.SendData(); });
    StepData_WriterLib const library(protocol);
    int const count = model->NbEntities();
    for (int first = 1; first <= count && stream; first += entities_at_a_time) {
        print(model, stream, [&](StepData_StepWriter & text) {
            for (int at = first; at < std::min(first + entities_at_a_time, count + 1); ++at) {
                text.SendEntity(at, library);
            }
        });
    }
    stream << more_definitions;
    print(model, stream, [](StepData_StepWriter & text) {
        text.EndSec();
        text.EndFile();
    });
}
