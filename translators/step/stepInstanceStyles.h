#pragma once

#include <NCollection_DataMap.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepVisual_HArray1OfPresentationStyleSelect.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TopoDS_Shape.hxx>

#include <map>
#include <vector>

class Interface_Graph;
class Interface_InterfaceModel;
class StepRepr_NextAssemblyUsageOccurrence;
class StepRepr_PropertyDefinition;
class StepRepr_RepresentationContext;
class StepShape_ContextDependentShapeRepresentation;
class Transfer_FinderProcess;
class XSControl_WorkSession;

// One style that says nothing, for what is styled only to be hidden or to be put on a layer.
Handle(StepVisual_HArray1OfPresentationStyleSelect) step_no_styles();

// The items that the shape has become when it was transferred: itself, or what it is made of.
std::vector<Handle(StepRepr_RepresentationItem)> step_items_of(Handle(Transfer_FinderProcess) const & process,
                                                               TopoDS_Shape const & shape);

// The instance of whose items the style speaks, where it has one instance in mind; null when it speaks of its
// item in every place.
Handle(StepRepr_NextAssemblyUsageOccurrence)
    step_usage_of(StepVisual_StyledItem const & style, Interface_Graph const & graph);

// Styles for single instances in the model that a session has made of a document. They say nothing of how an
// instance looks, but are what can be hidden or put on a layer: the standard knows both for styled items
// only, and an item is that of the part and has a style for an instance by the context. Open CASCADE writes
// and reads colours of instances in the same way.
class stepInstanceStyles {
public:
    explicit stepInstanceStyles(Handle(XSControl_WorkSession) const & session);

    // The same style each time for a component of an assembly; null when the model does not have the
    // instance.
    Handle(StepVisual_StyledItem) style_of(TDF_Label const & component);

private:
    using Representation = Handle(StepShape_ShapeRepresentation);

    Handle(StepVisual_StyledItem) new_style(TDF_Label const & component);
    // That of the instance, which the model has already where the instance has a colour.
    Representation representation_of(Handle(StepShape_ContextDependentShapeRepresentation) const & place,
                                     Handle(StepRepr_RepresentationContext) const & context);
    void look_at_definitions(int first);

    Handle(XSControl_WorkSession) m_session;
    STEPConstruct_Styles m_styles;
    Handle(Interface_InterfaceModel) m_model;
    bool m_looked = false;
    std::map<StepRepr_PropertyDefinition const *, Representation> m_representations;
    NCollection_DataMap<TDF_Label, Handle(StepVisual_StyledItem), TDF_LabelMapHasher> m_done;
};
