#include "step/stepFaults.h"

#include "step/stepSplineFault.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_ReportEntity.hxx>
#include <StepGeom_CurveReplica.hxx>
#include <StepGeom_OffsetCurve3d.hxx>
#include <StepGeom_OffsetSurface.hxx>
#include <StepGeom_RectangularTrimmedSurface.hxx>
#include <StepGeom_SurfaceCurve.hxx>
#include <StepGeom_SurfaceReplica.hxx>
#include <StepGeom_TrimmedCurve.hxx>
#include <StepRepr_DefinitionalRepresentation.hxx>
#include <StepRepr_ItemDefinedTransformation.hxx>
#include <StepRepr_MappedItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_RepresentationRelationshipWithTransformation.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_OrientedEdge.hxx>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

// Words of the library for what it reads something usable in place of.
constexpr std::array<std::string_view, 4> harmless{"quoted String", "Boolean", "Logical", "numeration"};

// Shapes that are made of themselves, such as a trimmed curve of trimmed curves in a circle.
Handle(Standard_Transient) basis_of(Handle(Standard_Transient) const & entity)
{
    if (auto const edge = Handle(StepShape_OrientedEdge)::DownCast(entity); !edge.IsNull()) {
        return edge->EdgeElement();
    }
    if (auto const trimmed = Handle(StepGeom_TrimmedCurve)::DownCast(entity); !trimmed.IsNull()) {
        return trimmed->BasisCurve();
    }
    if (auto const curve = Handle(StepGeom_SurfaceCurve)::DownCast(entity); !curve.IsNull()) {
        return curve->Curve3d();
    }
    if (auto const offset = Handle(StepGeom_OffsetCurve3d)::DownCast(entity); !offset.IsNull()) {
        return offset->BasisCurve();
    }
    if (auto const replica = Handle(StepGeom_CurveReplica)::DownCast(entity); !replica.IsNull()) {
        return replica->ParentCurve();
    }
    if (auto const trimmed = Handle(StepGeom_RectangularTrimmedSurface)::DownCast(entity);
        !trimmed.IsNull()) {
        return trimmed->BasisSurface();
    }
    if (auto const offset = Handle(StepGeom_OffsetSurface)::DownCast(entity); !offset.IsNull()) {
        return offset->BasisSurface();
    }
    auto const replica = Handle(StepGeom_SurfaceReplica)::DownCast(entity);
    return replica.IsNull() ? Handle(Standard_Transient)() : replica->ParentSurface();
}

} // namespace

bool step_is_made_of_itself(Handle(Standard_Transient) const & entity)
{
    constexpr int longest = 100;
    auto basis = basis_of(entity);
    for (int step = 0; step < longest && !basis.IsNull(); ++step) {
        basis = basis_of(basis);
    }
    return !basis.IsNull();
}

bool step_is_part_of_shapes(Handle(Standard_Transient) const & entity)
{
    std::string_view const type = entity->DynamicType()->Name();
    // Contexts are read as far as they are known: what they lack has a usual value.
    bool const context = type.find("Context") != std::string_view::npos &&
                         !entity->IsKind(STANDARD_TYPE(StepShape_ContextDependentShapeRepresentation));
    return (!context && (type.starts_with("StepGeom_") || type.starts_with("StepShape_"))) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_DefinitionalRepresentation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_MappedItem)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationMap)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_ItemDefinedTransformation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationRelationshipWithTransformation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_NextAssemblyUsageOccurrence));
}

std::string step_load_fault(Handle(Interface_InterfaceModel) const & model, int number)
{
    if (!model->IsErrorEntity(number)) {
        return {};
    }
    auto const & check = *model->ReportEntity(number)->Check();
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

std::string step_fault(Handle(Interface_InterfaceModel) const & model, int number)
{
    auto const & entity = model->Value(number);
    if (!step_is_part_of_shapes(entity)) {
        return {};
    }
    auto fault = step_load_fault(model, number);
    return fault.empty() ? step_spline_fault(entity) : fault;
}
