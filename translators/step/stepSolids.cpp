#include "step/stepSolids.h"

#include "step/stepBooleans.h"
#include "step/stepPrimitives.h"
#include "step/stepSweptSolids.h"
#include "step/stepTransformation.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <Precision.hxx>
#include <Standard_Failure.hxx>
#include <StepShape_BooleanResult.hxx>
#include <StepShape_CsgSolid.hxx>
#include <StepShape_HalfSpaceSolid.hxx>
#include <StepShape_SolidModel.hxx>
#include <StepShape_SolidReplica.hxx>
#include <TopExp_Explorer.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeBinder.hxx>

#include <cmath>

namespace {

// Trees of operations deeper than this are taken for a circle or an attack; the stack has its limit too.
constexpr int deepest = 500;

bool is_own(Handle(Standard_Transient) const & entity)
{
    return step_is_primitive(entity) || step_is_swept_solid(entity) ||
           entity->IsKind(STANDARD_TYPE(StepShape_CsgSolid)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_BooleanResult)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_SolidReplica));
}

// The shape with its material inside; a null shape when it is no valid solid.
TopoDS_Shape sound(TopoDS_Shape const & shape)
{
    if (shape.IsNull() || !TopExp_Explorer(shape, TopAbs_SOLID).More() ||
        !BRepCheck_Analyzer(shape).IsValid()) {
        return {};
    }
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shape, properties);
    if (std::abs(properties.Mass()) < std::pow(Precision::Confusion(), 3)) {
        return {};
    }
    return properties.Mass() < 0 ? shape.Reversed() : shape;
}

} // namespace

stepSolids::stepSolids(Handle(StepData_StepModel) const & model, Handle(STEPControl_ActorRead) const & actor,
                       Handle(Transfer_TransientProcess) const & process, stepReferences const & references)
    : m_model(model), m_actor(actor), m_process(process), m_references(references)
{
}

bool stepSolids::is_solid(Handle(Standard_Transient) const & entity)
{
    return is_own(entity) || entity->IsKind(STANDARD_TYPE(StepShape_SolidModel)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_HalfSpaceSolid));
}

void stepSolids::build(Handle(StepRepr_Representation) const & representation)
{
    bool prepared = false;
    for (int index = 1; index <= representation->NbItems(); ++index) {
        auto const item = representation->ItemsValue(index);
        if (item.IsNull() || !is_own(item) || m_process->IsBound(item)) {
            continue;
        }
        if (!prepared) {
            m_actor->PrepareUnits(representation, m_process);
            prepared = true;
        }
        if (auto const shape = shape_of(item); !shape.IsNull()) {
            m_process->Bind(item, new TransferBRep_ShapeBinder(shape));
        }
    }
}

TopoDS_Shape stepSolids::shape_of(Handle(Standard_Transient) const & entity)
{
    if (entity.IsNull() || m_open.Extent() >= deepest || !m_open.Add(entity)) {
        return {};
    }
    TopoDS_Shape shape;
    try {
        shape = made(entity);
    } catch (Standard_Failure const &) {
        // It is then one of those without a result, which are all named.
        shape.Nullify();
    }
    m_open.Remove(entity);
    return shape;
}

TopoDS_Shape stepSolids::made(Handle(Standard_Transient) const & entity)
{
    if (step_is_primitive(entity)) {
        return sound(step_primitive(entity));
    }
    if (step_is_swept_solid(entity)) {
        return sound(step_swept_solid(entity, m_actor, m_process));
    }
    if (entity->IsKind(STANDARD_TYPE(StepShape_CsgSolid))) {
        return shape_of(operand(entity, 0));
    }
    if (entity->IsKind(STANDARD_TYPE(StepShape_BooleanResult))) {
        return combined(entity);
    }
    if (auto const replica = Handle(StepShape_SolidReplica)::DownCast(entity); !replica.IsNull()) {
        gp_Trsf transformation;
        auto const parent = shape_of(replica->ParentSolid());
        return !parent.IsNull() && !replica->Transformation().IsNull() &&
                       step_transformation(replica->Transformation(), transformation)
                   ? sound(step_transformed_copy(parent, transformation))
                   : TopoDS_Shape();
    }
    auto const binder = m_process->Find(entity);
    return TransferBRep::ShapeResult(binder.IsNull() ? m_actor->TransferShape(entity, m_process) : binder);
}

TopoDS_Shape stepSolids::combined(Handle(Standard_Transient) const & entity)
{
    auto const operation = Handle(StepShape_BooleanResult)::DownCast(entity)->Operator();
    auto const first = operand(entity, 0);
    auto const second = operand(entity, 1);
    auto const body = shape_of(first);
    if (body.IsNull() || second.IsNull()) {
        return {};
    }
    auto const half_space = Handle(StepShape_HalfSpaceSolid)::DownCast(second);
    auto const tool = half_space.IsNull() ? shape_of(second) : step_half_space(half_space);
    if (tool.IsNull() || (!half_space.IsNull() && operation == StepShape_boUnion)) {
        return {};
    }
    return sound(step_boolean(operation, body, tool));
}

Handle(Standard_Transient) stepSolids::operand(Handle(Standard_Transient) const & entity, std::size_t index)
{
    auto const references = m_references.find(m_model->IdentLabel(entity));
    if (references == m_references.end() || references->second.size() <= index) {
        return {};
    }
    if (m_entities.empty()) {
        for (int number = 1; number <= m_model->NbEntities(); ++number) {
            m_entities.emplace(m_model->IdentLabel(m_model->Value(number)), m_model->Value(number));
        }
    }
    auto const found = m_entities.find(references->second[index]);
    return found == m_entities.end() ? Handle(Standard_Transient)() : found->second;
}
