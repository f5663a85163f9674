#include "step/stepStyleDamage.h"

#include "step/stepFaults.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <Interface_InterfaceModel.hxx>
#include <StepVisual_CurveStyle.hxx>
#include <StepVisual_FillAreaStyle.hxx>
#include <StepVisual_FillAreaStyleColour.hxx>
#include <StepVisual_PresentationStyleAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <StepVisual_SurfaceSideStyle.hxx>
#include <StepVisual_SurfaceStyleFillArea.hxx>
#include <StepVisual_SurfaceStyleUsage.hxx>
#include <TColStd_MapOfTransient.hxx>
#include <XSControl_WorkSession.hxx>

#include <string_view>
#include <vector>

namespace {

bool is_of_styles(Handle(Standard_Transient) const & entity)
{
    return std::string_view(entity->DynamicType()->Name()).starts_with("StepVisual_");
}

// What the library follows from an item to its colour.
bool is_followed(Handle(Standard_Transient) const & entity)
{
    return entity->IsKind(STANDARD_TYPE(StepVisual_PresentationStyleAssignment)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_SurfaceStyleUsage)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_SurfaceSideStyle)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_SurfaceStyleFillArea)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_FillAreaStyle)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_FillAreaStyleColour)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_CurveStyle));
}

} // namespace

void step_drop_damaged_styles(Handle(XSControl_WorkSession) const & session)
{
    auto const model = session->Model();
    TColStd_MapOfTransient damaged;
    std::vector<Handle(Standard_Transient)> waiting;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        if (model->IsErrorEntity(number) && is_followed(entity) && !step_load_fault(model, number).empty() &&
            damaged.Add(entity)) {
            waiting.push_back(entity);
        }
    }
    while (!waiting.empty()) {
        auto const entity = waiting.back();
        waiting.pop_back();
        if (auto const item = Handle(StepVisual_StyledItem)::DownCast(entity); !item.IsNull()) {
            item->SetStyles({});
            continue;
        }
        for (auto users = session->Graph().Sharings(entity); users.More(); users.Next()) {
            if (is_of_styles(users.Value()) && damaged.Add(users.Value())) {
                waiting.push_back(users.Value());
            }
        }
    }
}
