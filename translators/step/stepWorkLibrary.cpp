#include "step/stepWorkLibrary.h"

#include "step/stepDefuse.h"
#include "step/stepFaults.h"
#include "step/stepHolders.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_Protocol.hxx>
#include <Interface_ReportEntity.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <StepShape_BrepWithVoids.hxx>

namespace {

// The library asks the lists of these with care, or they can do without.
bool may_be_empty(Handle(Standard_Transient) const & entity)
{
    return step_is_holder(entity) || entity->IsKind(STANDARD_TYPE(StepShape_BrepWithVoids));
}

// The library does not ask it any more.
void mark(StepData_StepModel & model, int number, char const * fault)
{
    Handle(Interface_Check) const check = new Interface_Check(model.Value(number));
    check->AddFail(fault);
    Handle(Interface_ReportEntity) const report = new Interface_ReportEntity(check, model.Value(number));
    report->SetContent(new StepData_UndefinedEntity(Standard_True));
    model.SetReportEntity(number, report);
}

} // namespace

Standard_Integer stepWorkLibrary::ReadStream(char const * name, std::istream & stream,
                                             Handle(Interface_InterfaceModel) & model,
                                             Handle(Interface_Protocol) const & protocol) const
{
    auto const status = StepSelect_WorkLibrary::ReadStream(name, stream, model, protocol);
    auto const step = Handle(StepData_StepModel)::DownCast(model);
    for (int number = 1; !step.IsNull() && number <= step->NbEntities(); ++number) {
        auto const & entity = step->Value(number);
        if (!step_is_part_of_shapes(entity)) {
            continue;
        }
        if (step_is_made_of_itself(entity)) {
            mark(*step, number, "It is made of itself");
            step_defuse(entity);
        } else if (m_empty_lists.count(step->IdentLabel(entity)) > 0 && !may_be_empty(entity) &&
                   !step->IsReportEntity(number)) {
            mark(*step, number, "A list of it is empty");
        }
    }
    return status;
}
