#include "step/stepPmiTargets.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_Protocol.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepRepr_ShapeRepresentationRelationshipWithTransformation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <TopExp_Explorer.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_FinderProcess.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>

#include <deque>
#include <set>

stepPmiTargets::stepPmiTargets(Handle(XSControl_WorkSession) const & session)
    : m_graph(session->Model(), session->Protocol(), Standard_False)
{
    auto const process = session->TransferWriter()->FinderProcess();
    for (int index = 1; index <= process->NbMapped(); ++index) {
        auto const shape = Handle(TransferBRep_ShapeMapper)::DownCast(process->Mapped(index));
        Handle(StepRepr_RepresentationItem) item;
        if (!shape.IsNull() &&
            process->FindTypedTransient(shape, STANDARD_TYPE(StepRepr_RepresentationItem), item)) {
            if (int const number = session->Model()->Number(item); number > 0) {
                m_entities.Bind(shape->Value(), number);
            }
        }
    }
}

int stepPmiTargets::entity_of(TopoDS_Shape const & shape) const
{
    auto const * found = shape.IsNull() ? nullptr : m_entities.Seek(shape);
    return found == nullptr ? 0 : *found;
}

int stepPmiTargets::representation_of(int entity) const
{
    std::deque<int> waiting{entity};
    std::set<int> seen{entity};
    while (!waiting.empty()) {
        int const number = waiting.front();
        waiting.pop_front();
        for (auto user = m_graph.Sharings(m_graph.Entity(number)); user.More(); user.Next()) {
            int const at = m_graph.EntityNumber(user.Value());
            if (user.Value()->IsKind(STANDARD_TYPE(StepShape_ShapeRepresentation))) {
                return at;
            }
            if (user.Value()->IsKind(STANDARD_TYPE(StepRepr_RepresentationItem)) && seen.insert(at).second) {
                waiting.push_back(at);
            }
        }
    }
    return 0;
}

std::optional<stepPmiTargets::Product> stepPmiTargets::product_of(TopoDS_Shape const & shape) const
{
    if (shape.IsNull()) {
        return std::nullopt;
    }
    for (auto const kind : {TopAbs_FACE, TopAbs_EDGE, TopAbs_VERTEX}) {
        for (TopExp_Explorer part(shape, kind); part.More(); part.Next()) {
            int const entity = entity_of(part.Current());
            int const representation = entity == 0 ? 0 : representation_of(entity);
            if (representation != 0) {
                return product_of_representation(representation);
            }
        }
    }
    return std::nullopt;
}

// What belongs to one shape may stand in several representations.
std::optional<stepPmiTargets::Product> stepPmiTargets::product_of_representation(int representation) const
{
    std::deque<int> waiting{representation};
    std::set<int> seen{representation};
    while (!waiting.empty()) {
        int const number = waiting.front();
        waiting.pop_front();
        for (auto user = m_graph.Sharings(m_graph.Entity(number)); user.More(); user.Next()) {
            if (auto const shown = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(user.Value());
                !shown.IsNull()) {
                auto const shape = shown->Definition().PropertyDefinition();
                auto const definition = shape.IsNull() ? Handle(StepBasic_ProductDefinition)()
                                                       : shape->Definition().ProductDefinition();
                if (!definition.IsNull()) {
                    return Product{m_graph.EntityNumber(definition), m_graph.EntityNumber(shape), number};
                }
            }
            auto const relation = Handle(StepRepr_ShapeRepresentationRelationship)::DownCast(user.Value());
            if (relation.IsNull() ||
                relation->IsKind(STANDARD_TYPE(StepRepr_ShapeRepresentationRelationshipWithTransformation))) {
                continue;
            }
            for (auto const & other : {relation->Rep1(), relation->Rep2()}) {
                int const at = m_graph.EntityNumber(other);
                if (at != 0 && seen.insert(at).second) {
                    waiting.push_back(at);
                }
            }
        }
    }
    return std::nullopt;
}
