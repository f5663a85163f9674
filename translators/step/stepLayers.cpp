#include "step/stepLayers.h"

#include <Interface_InterfaceModel.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepVisual_HArray1OfLayeredItem.hxx>
#include <StepVisual_LayeredItem.hxx>
#include <StepVisual_PresentationLayerAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_HAsciiString.hxx>

namespace {

void put_shapes_for_styles(StepVisual_HArray1OfLayeredItem & items)
{
    for (int at = items.Lower(); at <= items.Upper(); ++at) {
        auto const style = Handle(StepVisual_StyledItem)::DownCast(items.Value(at).Value());
        if (!style.IsNull() && !style->Item().IsNull()) {
            items.ChangeValue(at).SetValue(style->Item());
        }
    }
}

} // namespace

std::int64_t step_prepare_layers(Handle(Interface_InterfaceModel) const & model)
{
    std::int64_t nameless = 0;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const layer = Handle(StepVisual_PresentationLayerAssignment)::DownCast(model->Value(number));
        if (layer.IsNull()) {
            continue;
        }
        nameless += layer->Name().IsNull() || layer->Name()->IsEmpty() ? 1 : 0;
        if (!layer->AssignedItems().IsNull()) {
            put_shapes_for_styles(*layer->AssignedItems());
        }
    }
    return nameless;
}
