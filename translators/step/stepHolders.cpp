#include "step/stepHolders.h"

#include <StepBasic_ProductDefinitionRelationship.hxx>
#include <StepGeom_Placement.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_GeometricSet.hxx>
#include <StepShape_HArray1OfFace.hxx>
#include <StepShape_HArray1OfGeometricSetSelect.hxx>
#include <StepShape_HArray1OfShell.hxx>
#include <StepShape_ShapeDimensionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>

namespace {

using Entity = Handle(Standard_Transient);

template <class Member>
Entity entity_of(Handle(Member) const & member)
{
    return Entity(member.get());
}

Entity entity_of(StepShape_Shell const & member)
{
    return member.Value();
}

Entity entity_of(StepShape_GeometricSetSelect const & member)
{
    return member.Value();
}

// Calls work(array, set) with the members of a holder, where `set` gives it others.
template <class Work>
void with_members(Entity const & entity, Work const & work)
{
    if (auto const shell = Handle(StepShape_ConnectedFaceSet)::DownCast(entity); !shell.IsNull()) {
        work(shell->CfsFaces(), [&](auto const & faces) { shell->SetCfsFaces(faces); });
    } else if (auto const set = Handle(StepShape_GeometricSet)::DownCast(entity); !set.IsNull()) {
        work(set->Elements(), [&](auto const & elements) { set->SetElements(elements); });
    } else if (auto const model = Handle(StepShape_ShellBasedSurfaceModel)::DownCast(entity);
               !model.IsNull()) {
        work(model->SbsmBoundary(), [&](auto const & shells) { model->SetSbsmBoundary(shells); });
    } else if (auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(entity); !shape.IsNull()) {
        work(shape->Items(), [&](auto const & items) { shape->SetItems(items); });
    }
}

} // namespace

bool step_is_holder(Entity const & entity)
{
    return entity->IsKind(STANDARD_TYPE(StepShape_ConnectedFaceSet)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_GeometricSet)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
           (entity->IsKind(STANDARD_TYPE(StepShape_ShapeRepresentation)) &&
            !entity->IsKind(STANDARD_TYPE(StepShape_ShapeDimensionRepresentation)));
}

bool step_has_gaps(Entity const & holder)
{
    bool gaps = false;
    with_members(holder, [&](auto const & array, auto const &) {
        gaps = array.IsNull();
        for (int at = gaps ? 1 : array->Lower(); !gaps && at <= array->Upper(); ++at) {
            gaps = entity_of(array->Value(at)).IsNull();
        }
    });
    return gaps;
}

bool step_drop_members(Entity const & holder, std::function<bool(Entity const & member)> const & drop)
{
    bool empty = true;
    with_members(holder, [&](auto const & array, auto const & set) {
        using Array = std::remove_cvref_t<decltype(*array)>;
        if (array.IsNull()) {
            return;
        }
        std::vector<std::remove_cvref_t<decltype(array->Value(1))>> kept;
        for (auto const & member : *array) {
            auto const entity = entity_of(member);
            if (!entity.IsNull() && !drop(entity)) {
                kept.push_back(member);
            }
        }
        empty = kept.empty();
        opencascade::handle<Array> members;
        if (!empty) {
            members = new Array(1, static_cast<int>(kept.size()));
            for (int at = 1; at <= members->Upper(); ++at) {
                members->SetValue(at, kept[static_cast<std::size_t>(at - 1)]);
            }
        }
        set(members);
    });
    return empty;
}

bool step_may_be_empty(Entity const & holder)
{
    return holder->IsKind(STANDARD_TYPE(StepShape_ShapeRepresentation));
}

bool step_is_place(Entity const & entity)
{
    return entity->IsKind(STANDARD_TYPE(StepGeom_Placement));
}

std::vector<Entity> step_instances_of(Entity const & entity)
{
    std::vector<Entity> instances;
    auto const link = Handle(StepShape_ContextDependentShapeRepresentation)::DownCast(entity);
    if (!link.IsNull() && !link->RepresentedProductRelation().IsNull()) {
        auto const instance =
            link->RepresentedProductRelation()->Definition().ProductDefinitionRelationship();
        if (!instance.IsNull()) {
            instances.push_back(instance);
        }
    }
    return instances;
}
