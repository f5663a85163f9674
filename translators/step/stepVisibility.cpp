#include "step/stepVisibility.h"

#include "sdk/sdkVisibility.h"

#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepVisual_HArray1OfInvisibleItem.hxx>
#include <StepVisual_HArray1OfLayeredItem.hxx>
#include <StepVisual_HArray1OfPresentationStyleAssignment.hxx>
#include <StepVisual_HArray1OfPresentationStyleSelect.hxx>
#include <StepVisual_Invisibility.hxx>
#include <StepVisual_InvisibleItem.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_NullStyleMember.hxx>
#include <StepVisual_PresentationLayerAssignment.hxx>
#include <StepVisual_PresentationStyleAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Iterator.hxx>
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

Item styled(Handle(Standard_Transient) const & entity)
{
    auto const style = Handle(StepVisual_StyledItem)::DownCast(entity);
    return style.IsNull() ? Item::DownCast(entity) : style->Item();
}

// The items that the invisible one stands for: that of a style, or all of a layer.
std::vector<Item> items_of(StepVisual_InvisibleItem const & invisible)
{
    std::vector<Item> items;
    if (auto const style = invisible.StyledItem(); !style.IsNull()) {
        items.push_back(styled(style));
    } else if (auto const layer = invisible.PresentationLayerAssignment();
               !layer.IsNull() && !layer->AssignedItems().IsNull()) {
        for (auto const & item : *layer->AssignedItems()) {
            items.push_back(styled(item.Value()));
        }
    }
    return items;
}

void hide_shape(sdkDocument & document, TopoDS_Shape const & shape)
{
    TDF_Label label;
    if (shape.IsNull()) {
        return;
    }
    if (document.shapes()->Search(shape, label, Standard_False, Standard_True, Standard_True)) {
        sdk_hide(document, label);
        return;
    }
    // A body of a part that has several.
    for (auto const & part : document.parts()) {
        if (document.shapes()->AddSubShape(part, shape, label)) {
            sdk_hide(document, label);
            return;
        }
    }
}

// The items that the shape has become: itself, or what it is made of.
void append_items(Handle(Transfer_FinderProcess) const & process, TopoDS_Shape const & shape,
                  std::vector<Item> & items)
{
    TopLoc_Location place;
    if (auto const item = STEPConstruct::FindEntity(process, shape, place); !item.IsNull()) {
        items.push_back(item);
        return;
    }
    for (TopoDS_Iterator part(shape); part.More(); part.Next()) {
        append_items(process, part.Value(), items);
    }
}

class Hiding {
public:
    explicit Hiding(Handle(XSControl_WorkSession) const & session)
        : m_session(session), m_styles(session), m_model(session->Model())
    {
        for (int number = 1; number <= m_model->NbEntities(); ++number) {
            if (auto const hidden = Handle(StepVisual_Invisibility)::DownCast(m_model->Value(number));
                !hidden.IsNull()) {
                for (int index = 1; index <= hidden->NbInvisibleItems(); ++index) {
                    for (auto const & item : items_of(hidden->InvisibleItemsValue(index))) {
                        m_done.insert(item.get());
                    }
                }
            }
            if (auto const style = Handle(StepVisual_StyledItem)::DownCast(m_model->Value(number));
                !style.IsNull() && !style->Item().IsNull()) {
                m_existing.emplace(style->Item().get(), style);
            }
        }
    }

    void hide(TopoDS_Shape const & shape)
    {
        std::vector<Item> items;
        append_items(m_session->TransferWriter()->FinderProcess(), shape, items);
        for (auto const & item : items) {
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
        Handle(StepVisual_NullStyleMember) const nothing = new StepVisual_NullStyleMember();
        nothing->SetValue(StepVisual_Null);
        Handle(StepVisual_HArray1OfPresentationStyleSelect) const styles =
            new StepVisual_HArray1OfPresentationStyleSelect(1, 1);
        styles->ChangeValue(1).SetValue(nothing);
        Handle(StepVisual_PresentationStyleAssignment) const assignment =
            new StepVisual_PresentationStyleAssignment();
        assignment->Init(styles);
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

void step_read_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument & document)
{
    auto const model = session->Model();
    auto const process = session->TransferReader()->TransientProcess();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const hidden = Handle(StepVisual_Invisibility)::DownCast(model->Value(number));
        for (int index = 1; !hidden.IsNull() && index <= hidden->NbInvisibleItems(); ++index) {
            for (auto const & item : items_of(hidden->InvisibleItemsValue(index))) {
                if (!item.IsNull()) {
                    hide_shape(document, TransferBRep::ShapeResult(process->Find(item)));
                }
            }
        }
    }
}

void step_write_visibility(Handle(XSControl_WorkSession) const & session, sdkDocument const & document)
{
    auto const labels = sdk_hidden_labels(document);
    if (labels.IsEmpty()) {
        return;
    }
    Hiding hiding(session);
    for (auto const & label : labels) {
        hiding.hide(XCAFDoc_ShapeTool::GetShape(label));
    }
    hiding.finish();
}
