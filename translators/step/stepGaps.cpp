#include "step/stepGaps.h"

#include <StepRepr_RepresentationContext.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_BooleanResult.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_CsgSolid.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_HArray1OfFace.hxx>
#include <StepShape_ShapeRepresentation.hxx>

#include <unordered_map>

namespace {

bool has_gap(Handle(Standard_Transient) const & entity)
{
    if (auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(entity);
        !shape.IsNull() && !shape->Items().IsNull()) {
        for (int index = 1; index <= shape->NbItems(); ++index) {
            if (shape->ItemsValue(index).IsNull()) {
                return true;
            }
        }
    }
    if (auto const shell = Handle(StepShape_ConnectedFaceSet)::DownCast(entity);
        !shell.IsNull() && !shell->CfsFaces().IsNull()) {
        for (int index = 1; index <= shell->NbCfsFaces(); ++index) {
            if (shell->CfsFacesValue(index).IsNull()) {
                return true;
            }
        }
    }
    return false;
}

// The context of a representation stands among its references too.
bool fits(Handle(Standard_Transient) const & target, Handle(Standard_Transient) const & holder)
{
    auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(holder);
    if (target.IsNull()) {
        return !shape.IsNull() && shape->ContextOfItems().IsNull();
    }
    return shape.IsNull() ? target->IsKind(STANDARD_TYPE(StepShape_Face))
                          : target->IsKind(STANDARD_TYPE(StepRepr_RepresentationItem)) ||
                                target->IsKind(STANDARD_TYPE(StepRepr_RepresentationContext));
}

} // namespace

stepTextualLinks::stepTextualLinks(Handle(StepData_StepModel) const & model, std::string_view text)
{
    std::set<int> operations;
    std::set<int> holders;
    std::set<int> wanted;
    for (int index = 1; index <= model->NbEntities(); ++index) {
        auto const & entity = model->Value(index);
        bool const operation = entity->IsKind(STANDARD_TYPE(StepShape_CsgSolid)) ||
                               entity->IsKind(STANDARD_TYPE(StepShape_BooleanResult));
        if (operation || has_gap(entity)) {
            int const number = model->IdentLabel(entity);
            (operation ? operations : holders).insert(number);
            wanted.insert(number);
        }
    }
    m_operands = step_references_of(wanted, text);
    for (int index = 1; index <= model->NbEntities() && !wanted.empty(); ++index) {
        auto const & entity = model->Value(index);
        if (m_operands.count(model->IdentLabel(entity)) > 0) {
            m_explained.insert(entity.get());
        }
    }
    if (holders.empty()) {
        return;
    }
    std::unordered_map<int, Handle(Standard_Transient)> entities;
    for (int index = 1; index <= model->NbEntities(); ++index) {
        entities.emplace(model->IdentLabel(model->Value(index)), model->Value(index));
    }
    for (int const holder : holders) {
        auto const entity = entities[holder];
        for (int const number : m_operands[holder]) {
            auto const found = entities.find(number);
            auto const target = found == entities.end() ? Handle(Standard_Transient)() : found->second;
            if (!fits(target, entity)) {
                m_gaps.push_back({entity, number, target});
            }
        }
        m_operands.erase(holder);
    }
}
