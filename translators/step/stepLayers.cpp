#include "step/stepLayers.h"

#include "step/stepInstanceStyles.h"
#include "step/stepInstances.h"
#include "step/stepVisibility.h"

#include <Interface_InterfaceModel.hxx>
#include <StepVisual_HArray1OfLayeredItem.hxx>
#include <StepVisual_LayeredItem.hxx>
#include <StepVisual_PresentationLayerAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_ChildIterator.hxx>

#include <map>
#include <string>

namespace {

using Layer = Handle(StepVisual_PresentationLayerAssignment);

void put_shapes_for_styles(StepVisual_HArray1OfLayeredItem & items, Interface_Graph const & graph)
{
    for (int at = items.Lower(); at <= items.Upper(); ++at) {
        if (auto const item = step_item_of(items.Value(at).Value(), graph); !item.IsNull()) {
            items.ChangeValue(at).SetValue(item);
        }
    }
}

TCollection_ExtendedString name_of(StepVisual_PresentationLayerAssignment const & layer)
{
    return layer.Name().IsNull() ? TCollection_ExtendedString()
                                 : TCollection_ExtendedString(layer.Name()->ToCString(), Standard_True);
}

Handle(StepVisual_HArray1OfLayeredItem)
    with(Handle(StepVisual_HArray1OfLayeredItem) const & items, Handle(StepVisual_StyledItem) const & style)
{
    int const before = items.IsNull() ? 0 : items->Length();
    Handle(StepVisual_HArray1OfLayeredItem) const result = new StepVisual_HArray1OfLayeredItem(1, before + 1);
    for (int at = 1; at <= before; ++at) {
        result->SetValue(at, items->Value(items->Lower() + at - 1));
    }
    result->ChangeValue(before + 1).SetValue(style);
    return result;
}

} // namespace

std::int64_t step_prepare_layers(Handle(Interface_InterfaceModel) const & model,
                                 Interface_Graph const & graph)
{
    std::int64_t nameless = 0;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const layer = Handle(StepVisual_PresentationLayerAssignment)::DownCast(model->Value(number));
        if (layer.IsNull()) {
            continue;
        }
        nameless += layer->Name().IsNull() || layer->Name()->IsEmpty() ? 1 : 0;
        if (!layer->AssignedItems().IsNull()) {
            put_shapes_for_styles(*layer->AssignedItems(), graph);
        }
    }
    return nameless;
}

void step_read_layers_of_instances(Handle(Interface_InterfaceModel) const & model,
                                   stepInstances const & instances, sdkDocument & document)
{
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const layer = Layer::DownCast(model->Value(number));
        if (layer.IsNull() || layer->AssignedItems().IsNull()) {
            continue;
        }
        for (auto const & item : *layer->AssignedItems()) {
            auto const style = Handle(StepVisual_StyledItem)::DownCast(item.Value());
            auto const label = style.IsNull() ? TDF_Label() : instances.label_of(*style);
            if (!label.IsNull()) {
                document.layers()->SetLayer(label, name_of(*layer));
            }
        }
    }
}

void step_write_layers_of_instances(Handle(Interface_InterfaceModel) const & model,
                                    sdkDocument const & document, stepInstanceStyles & styles)
{
    std::map<std::string, Layer> existing;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (auto const layer = Layer::DownCast(model->Value(number)); !layer.IsNull()) {
            existing.emplace(TCollection_AsciiString(name_of(*layer)).ToCString(), layer);
        }
    }
    for (TDF_ChildIterator child(document.shapes()->Label(), Standard_True); child.More(); child.Next()) {
        TDF_LabelSequence layers;
        if (XCAFDoc_ShapeTool::IsComponent(child.Value())) {
            document.layers()->GetLayers(child.Value(), layers);
        }
        for (auto const & label : layers) {
            TCollection_ExtendedString name;
            auto const style = styles.style_of(child.Value());
            if (style.IsNull() || !document.layers()->GetLayer(label, name)) {
                continue;
            }
            TCollection_AsciiString const text(name);
            auto & layer = existing[text.ToCString()];
            bool const made = layer.IsNull();
            if (made) {
                layer = new StepVisual_PresentationLayerAssignment();
                layer->Init(new TCollection_HAsciiString(text), new TCollection_HAsciiString("visible"), {});
            }
            layer->SetAssignedItems(with(layer->AssignedItems(), style));
            if (made) {
                model->AddWithRefs(layer);
            }
        }
    }
}
