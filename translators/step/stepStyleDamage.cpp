#include "step/stepStyleDamage.h"

#include "step/stepFaults.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <Interface_InterfaceModel.hxx>
#include <StepVisual_HArray1OfPresentationStyleAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TColStd_MapOfTransient.hxx>
#include <XSControl_WorkSession.hxx>

#include <string_view>
#include <vector>

namespace {

bool is_of_styles(Handle(Standard_Transient) const & entity)
{
    return std::string_view(entity->DynamicType()->Name()).starts_with("StepVisual_");
}

} // namespace

void step_drop_damaged_styles(Handle(XSControl_WorkSession) const & session)
{
    auto const model = session->Model();
    TColStd_MapOfTransient damaged;
    std::vector<Handle(Standard_Transient)> waiting;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        if (model->IsErrorEntity(number) && is_of_styles(entity) && !step_load_fault(model, number).empty() &&
            damaged.Add(entity)) {
            waiting.push_back(entity);
        }
    }
    while (!waiting.empty()) {
        auto const entity = waiting.back();
        waiting.pop_back();
        if (auto const item = Handle(StepVisual_StyledItem)::DownCast(entity); !item.IsNull()) {
            item->SetStyles(new StepVisual_HArray1OfPresentationStyleAssignment(1, 0));
            continue;
        }
        for (auto users = session->Graph().Sharings(entity); users.More(); users.Next()) {
            if (is_of_styles(users.Value()) && damaged.Add(users.Value())) {
                waiting.push_back(users.Value());
            }
        }
    }
}
