#include "step/stepVisibility.h"

#include "sdk/sdkVisibility.h"
#include "step/stepInstanceStyles.h"
#include "step/stepInstances.h"

#include <Interface_Graph.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepVisual_HArray1OfInvisibleItem.hxx>
#include <StepVisual_HArray1OfLayeredItem.hxx>
#include <StepVisual_HArray1OfPresentationStyleAssignment.hxx>
#include <StepVisual_Invisibility.hxx>
#include <StepVisual_InvisibleItem.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_PresentationLayerAssignment.hxx>
#include <StepVisual_PresentationStyleAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TransferBRep.hxx>
#include <Transfer_FinderProcess.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>

#include <map>
#include <set>
#include <vector>

namespace {

using Item = Handle(StepRepr_RepresentationItem);

// The items that the invisible one stands for: that of a style, or all of a layer.
std::vector<Item> items_of(StepVisual_InvisibleItem const & invisible, Interface_Graph const & graph)
{
    std::vector<Item> items;
    if (auto const style = invisible.StyledItem(); !style.IsNull()) {
        items.push_back(step_item_of(style, graph));
    } else if (auto const layer = invisible.PresentationLayerAssignment();
               !layer.IsNull() && !layer->AssignedItems().IsNull()) {
        for (auto const & item : *layer->AssignedItems()) {
            items.push_back(step_item_of(item.Value(), graph));
        }
    }
    return items;
}

template <class Take>
void for_each_invisible(Handle(Interface_InterfaceModel) const & model, Take const & take)
{
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const hidden = Handle(StepVisual_Invisibility)::DownCast(model->Value(number));
        for (int index = 1; !hidden.IsNull() && index <= hidden->NbInvisibleItems(); ++index) {
            take(hidden->InvisibleItemsValue(index));
        }
    }
}

class Hiding {
public:
    explicit Hiding(Handle(XSControl_WorkSession) const & session)
        : m_session(session), m_styles(session), m_model(session->Model())
    {
        Interface_Graph const graph(m_model);
        for (auto const & item : step_hidden_items(m_model, graph)) {
            m_done.insert(item.get());
        }
        for (int number = 1; number <= m_model->NbEntities(); ++number) {
            if (auto const style = Handle(StepVisual_StyledItem)::DownCast(m_model->Value(number));
                !style.IsNull() && !step_item_of(style, graph).IsNull()) {
                m_existing.emplace(style->Item().get(), style);
            }
        }
    }

    void hide(Handle(StepVisual_StyledItem) const & style) { m_hidden.push_back(style); }

    void hide(TopoDS_Shape const & shape)
    {
        for (auto const & item : step_items_of(m_session->TransferWriter()->FinderProcess(), shape)) {
            if (m_done.insert(item.get()).second) {
                m_hidden.push_back(style_of(item, shape));
            }
        }
    }

    void finish()
    {
        if (m_hidden.empty()) {
            return;
        }
        Handle(StepVisual_HArray1OfInvisibleItem) const items =
            new StepVisual_HArray1OfInvisibleItem(1, static_cast<int>(m_hidden.size()));
        for (std::size_t at = 0; at < m_hidden.size(); ++at) {
            items->ChangeValue(static_cast<int>(at) + 1).SetValue(m_hidden[at]);
        }
        Handle(StepVisual_Invisibility) const invisibility = new StepVisual_Invisibility();
        invisibility->Init(items);
        m_model->AddWithRefs(invisibility);
    }

private:
    // One that says nothing but that it is there, for a thing without a style cannot be hidden.
    static Handle(StepVisual_PresentationStyleAssignment) no_style()
    {
        Handle(StepVisual_PresentationStyleAssignment) const assignment =
            new StepVisual_PresentationStyleAssignment();
        assignment->Init(step_no_styles());
        return assignment;
    }

    Handle(StepVisual_StyledItem) style_of(Item const & item, TopoDS_Shape const & shape)
    {
        if (auto const found = m_existing.find(item.get()); found != m_existing.end()) {
            return found->second;
        }
        Handle(StepVisual_HArray1OfPresentationStyleAssignment) const assignments =
            new StepVisual_HArray1OfPresentationStyleAssignment(1, 1);
        assignments->SetValue(1, no_style());
        Handle(StepVisual_StyledItem) const style = new StepVisual_StyledItem();
        style->Init(new TCollection_HAsciiString("hidden"), assignments, item);
        m_styles.ClearStyles();
        m_styles.AddStyle(style);
        Handle(StepVisual_MechanicalDesignGeometricPresentationRepresentation) presentation;
        if (auto const context = m_styles.FindContext(shape);
            !context.IsNull() && m_styles.CreateMDGPR(context, presentation)) {
            m_model->AddWithRefs(presentation);
        } else {
            m_model->AddWithRefs(style);
        }
        return style;
    }

    Handle(XSControl_WorkSession) m_session;
    STEPConstruct_Styles m_styles;
    Handle(Interface_InterfaceModel) m_model;
    std::map<StepRepr_RepresentationItem const *, Handle(StepVisual_StyledItem)> m_existing;
    std::set<StepRepr_RepresentationItem const *> m_done;
    std::vector<Handle(StepVisual_StyledItem)> m_hidden;
};

} // namespace

Handle(StepRepr_RepresentationItem)
    step_item_of(Handle(Standard_Transient) const & item, Interface_Graph const & graph)
{
    auto const style = Handle(StepVisual_StyledItem)::DownCast(item);
    if (style.IsNull()) {
        return Item::DownCast(item);
    }
    return step_usage_of(*style, graph).IsNull() ? style->Item() : Item();
}

std::vector<Handle(StepRepr_RepresentationItem)>
step_hidden_items(Handle(Interface_InterfaceModel) const & model, Interface_Graph const & graph)
{
    std::vector<Item> result;
    for_each_invisible(model, [&](StepVisual_InvisibleItem const & invisible) {
        for (auto const & item : items_of(invisible, graph)) {
            if (!item.IsNull()) {
                result.push_back(item);
            }
        }
    });
    return result;
}

TDF_Label step_label_of(sdkDocument & document, TopoDS_Shape const & shape)
{
    TDF_Label label;
    if (shape.IsNull() ||
        document.shapes()->Search(shape, label, Standard_False, Standard_True, Standard_True)) {
        return label;
    }
    for (auto const & part : document.parts()) {
        if (document.shapes()->AddSubShape(part, shape, label)) {
            break;
        }
    }
    return label;
}

void step_read_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument & document,
                          stepInstances const & instances)
{
    auto const process = session->TransferReader()->TransientProcess();
    auto const & graph = session->Graph();
    for (auto const & item : step_hidden_items(session->Model(), graph)) {
        sdk_hide(document, step_label_of(document, TransferBRep::ShapeResult(process->Find(item))));
    }
    for_each_invisible(session->Model(), [&](StepVisual_InvisibleItem const & invisible) {
        if (auto const style = invisible.StyledItem(); !style.IsNull()) {
            sdk_hide(document, instances.label_of(*style));
        }
    });
}

std::int64_t step_write_visibility(Handle(XSControl_WorkSession) const & session,
                                   sdkDocument const & document, TDF_LabelSequence const & instances,
                                   stepInstanceStyles & styles)
{
    auto const labels = sdk_hidden_labels(document);
    if (labels.IsEmpty() && instances.IsEmpty()) {
        return 0;
    }
    std::int64_t visible = 0;
    Hiding hiding(session);
    for (auto const & label : labels) {
        hiding.hide(XCAFDoc_ShapeTool::GetShape(label));
    }
    for (auto const & label : instances) {
        auto const style = styles.style_of(label);
        if (style.IsNull()) {
            ++visible;
        } else {
            hiding.hide(style);
        }
    }
    hiding.finish();
    return visible;
}
