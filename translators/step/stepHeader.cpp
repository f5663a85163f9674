#include "step/stepHeader.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <StepData_StepModel.hxx>
#include <TCollection_HAsciiString.hxx>

namespace {

Handle(TCollection_HAsciiString) text_of(std::string const & text)
{
    return new TCollection_HAsciiString(text.c_str());
}

} // namespace

void stepHeader::apply(Handle(StepData_StepModel) const & model) const
{
    APIHeaderSection_MakeHeader header(model);
    header.SetName(text_of(file));
    header.SetAuthorValue(1, text_of(author));
    header.SetOrganizationValue(1, text_of(organisation));
    header.SetAuthorisation(text_of(""));
    if (!schema.empty()) {
        header.SetSchemaIdentifiersValue(1, text_of(schema));
    }
}
