#include "step/stepInstanceStyles.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepVisual_HArray1OfPresentationStyleAssignment.hxx>
#include <StepVisual_HArray1OfPresentationStyleSelect.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_NullStyleMember.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_PresentationStyleSelect.hxx>
#include <StepVisual_StyleContextSelect.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Iterator.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_FinderProcess.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>

namespace {

using Item = Handle(StepRepr_RepresentationItem);
using Placed = Handle(StepShape_ContextDependentShapeRepresentation);

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

// What the model says of the place of a component in its assembly.
Placed placed(Handle(Transfer_FinderProcess) const & process, TDF_Label const & component,
              TopoDS_Shape const & shape)
{
    auto const whole = XCAFDoc_ShapeTool::GetShape(component.Father());
    Handle(Standard_Transient) definition;
    Placed result;
    auto const binder = process->Find(TransferBRep::ShapeMapper(process, shape));
    if (!binder.IsNull() && !whole.IsNull() &&
        process->FindTypedTransient(TransferBRep::ShapeMapper(process, whole),
                                    STANDARD_TYPE(StepShape_ShapeDefinitionRepresentation), definition)) {
        STEPConstruct::FindCDSR(binder, Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(definition),
                                result);
    }
    return result;
}

Handle(StepVisual_PresentationStyleByContext)
    style_within(Handle(StepShape_ShapeRepresentation) const & context)
{
    StepVisual_StyleContextSelect select;
    select.SetValue(context);
    Handle(StepVisual_PresentationStyleByContext) const assignment =
        new StepVisual_PresentationStyleByContext();
    assignment->Init(step_no_styles(), select);
    return assignment;
}

Handle(StepRepr_NextAssemblyUsageOccurrence)
    usage_of(Handle(StepRepr_Representation) const & context, Interface_Graph const & graph)
{
    for (auto sharing = graph.Sharings(context); sharing.More(); sharing.Next()) {
        auto const definition = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(sharing.Value());
        auto const shape = definition.IsNull() ? Handle(StepRepr_PropertyDefinition)()
                                               : definition->Definition().PropertyDefinition();
        if (auto const usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(
                shape.IsNull() ? Handle(StepBasic_ProductDefinitionRelationship)()
                               : shape->Definition().ProductDefinitionRelationship());
            !usage.IsNull()) {
            return usage;
        }
    }
    return {};
}

} // namespace

Handle(StepVisual_HArray1OfPresentationStyleSelect) step_no_styles()
{
    Handle(StepVisual_NullStyleMember) const nothing = new StepVisual_NullStyleMember();
    nothing->SetValue(StepVisual_Null);
    Handle(StepVisual_HArray1OfPresentationStyleSelect) const styles =
        new StepVisual_HArray1OfPresentationStyleSelect(1, 1);
    styles->ChangeValue(1).SetValue(nothing);
    return styles;
}

std::vector<Handle(StepRepr_RepresentationItem)> step_items_of(Handle(Transfer_FinderProcess) const & process,
                                                               TopoDS_Shape const & shape)
{
    std::vector<Item> items;
    append_items(process, shape, items);
    return items;
}

Handle(StepRepr_NextAssemblyUsageOccurrence)
    step_usage_of(StepVisual_StyledItem const & style, Interface_Graph const & graph)
{
    for (int at = 1; !style.Styles().IsNull() && at <= style.NbStyles(); ++at) {
        auto const by_context =
            Handle(StepVisual_PresentationStyleByContext)::DownCast(style.StylesValue(at));
        auto const context = by_context.IsNull() ? Handle(StepRepr_Representation)()
                                                 : by_context->StyleContext().Representation();
        if (context.IsNull()) {
            continue;
        }
        if (auto const usage = usage_of(context, graph); !usage.IsNull()) {
            return usage;
        }
    }
    return {};
}

stepInstanceStyles::stepInstanceStyles(Handle(XSControl_WorkSession) const & session)
    : m_session(session), m_styles(session), m_model(session->Model())
{
}

Handle(StepVisual_StyledItem) stepInstanceStyles::style_of(TDF_Label const & component)
{
    Handle(StepVisual_StyledItem) style;
    if (!m_done.Find(component, style)) {
        style = new_style(component);
        m_done.Bind(component, style);
    }
    return style;
}

Handle(StepVisual_StyledItem) stepInstanceStyles::new_style(TDF_Label const & component)
{
    if (!XCAFDoc_ShapeTool::IsComponent(component)) {
        return {};
    }
    auto const process = m_session->TransferWriter()->FinderProcess();
    auto const shape = XCAFDoc_ShapeTool::GetShape(component);
    auto const items = step_items_of(process, shape);
    auto const place = placed(process, component, shape);
    if (items.empty() || place.IsNull() || place->RepresentationRelation().IsNull() ||
        place->RepresentationRelation()->Rep1().IsNull()) {
        return {};
    }
    auto const context = place->RepresentationRelation()->Rep1()->ContextOfItems();
    auto const representation = context.IsNull() ? Representation() : representation_of(place, context);
    if (representation.IsNull()) {
        return {};
    }
    Handle(StepVisual_HArray1OfPresentationStyleAssignment) const assignments =
        new StepVisual_HArray1OfPresentationStyleAssignment(1, 1);
    assignments->SetValue(1, style_within(representation));
    Handle(StepVisual_StyledItem) const style = new StepVisual_StyledItem();
    style->Init(new TCollection_HAsciiString("instance"), assignments, items.front());
    m_styles.ClearStyles();
    m_styles.AddStyle(style);
    Handle(StepVisual_MechanicalDesignGeometricPresentationRepresentation) presentation;
    if (m_styles.CreateMDGPR(context, presentation)) {
        m_model->AddWithRefs(presentation);
    } else {
        m_model->AddWithRefs(style);
    }
    return style;
}

stepInstanceStyles::Representation
stepInstanceStyles::representation_of(Handle(StepShape_ContextDependentShapeRepresentation) const & place,
                                      Handle(StepRepr_RepresentationContext) const & context)
{
    if (!m_looked) {
        look_at_definitions(1);
        m_looked = true;
    }
    auto const shape = place->RepresentedProductRelation();
    auto found = m_representations.find(shape.get());
    if (found == m_representations.end()) {
        int const before = m_model->NbEntities();
        m_styles.CreateNAUOSRD(context, place, {});
        look_at_definitions(before + 1);
        found = m_representations.find(shape.get());
    }
    return found == m_representations.end() ? Representation() : found->second;
}

void stepInstanceStyles::look_at_definitions(int first)
{
    for (int number = first; number <= m_model->NbEntities(); ++number) {
        auto const definition =
            Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(m_model->Value(number));
        if (!definition.IsNull()) {
            m_representations.emplace(definition->Definition().PropertyDefinition().get(),
                                      Representation::DownCast(definition->UsedRepresentation()));
        }
    }
}
