#include "step/stepDefuse.h"

#include "step/stepFaults.h"

#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_EdgeCurve.hxx>
#include <StepShape_OrientedEdge.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>

void step_defuse(Handle(Standard_Transient) const & entity)
{
    if (auto const link = Handle(StepShape_ContextDependentShapeRepresentation)::DownCast(entity);
        !link.IsNull() && link->RepresentedProductRelation().IsNull()) {
        link->SetRepresentedProductRelation(new StepRepr_ProductDefinitionShape);
    } else if (auto const shape = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(entity);
               !shape.IsNull() && shape->Definition().Value().IsNull()) {
        StepRepr_RepresentedDefinition definition;
        definition.SetValue(new StepRepr_ProductDefinitionShape);
        shape->SetDefinition(definition);
    } else if (auto const edge = Handle(StepShape_OrientedEdge)::DownCast(entity);
               !edge.IsNull() && (edge->EdgeElement().IsNull() || step_is_made_of_itself(edge))) {
        edge->SetEdgeElement(new StepShape_EdgeCurve);
    }
}
