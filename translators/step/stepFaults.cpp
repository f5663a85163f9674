#include "step/stepFaults.h"

#include "step/stepSplineFault.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_ReportEntity.hxx>
#include <StepRepr_ItemDefinedTransformation.hxx>
#include <StepRepr_MappedItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_RepresentationRelationshipWithTransformation.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// Words of the library for what it reads something usable in place of.
constexpr std::array<std::string_view, 4> harmless{"quoted String", "Boolean", "Logical", "numeration"};

std::string load_fault(Interface_Check const & check)
{
    for (int at = 1; at <= check.NbFails(); ++at) {
        std::string_view const text = check.CFail(at);
        if (std::none_of(harmless.begin(), harmless.end(), [text](std::string_view word) {
                return text.find(word) != std::string_view::npos;
            })) {
            return std::string(text);
        }
    }
    return {};
}

} // namespace

bool step_is_part_of_shapes(Handle(Standard_Transient) const & entity)
{
    std::string_view const type = entity->DynamicType()->Name();
    // Contexts are read as far as they are known: what they lack has a usual value.
    bool const context = type.find("Context") != std::string_view::npos &&
                         !entity->IsKind(STANDARD_TYPE(StepShape_ContextDependentShapeRepresentation));
    return (!context && (type.starts_with("StepGeom_") || type.starts_with("StepShape_"))) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_MappedItem)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationMap)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_ItemDefinedTransformation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationRelationshipWithTransformation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_NextAssemblyUsageOccurrence));
}

std::string step_fault(Handle(Interface_InterfaceModel) const & model, int number)
{
    auto const & entity = model->Value(number);
    if (!step_is_part_of_shapes(entity)) {
        return {};
    }
    if (model->IsErrorEntity(number)) {
        if (auto fault = load_fault(*model->ReportEntity(number)->Check()); !fault.empty()) {
            return fault;
        }
    }
    return step_spline_fault(entity);
}
