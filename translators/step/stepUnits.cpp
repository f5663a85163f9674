#include "step/stepUnits.h"

#include "sdk/sdkLengthUnit.h"
#include "step/stepSolids.h"

#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct_UnitContext.hxx>
#include <StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx.hxx>
#include <StepGeom_GeometricRepresentationContextAndGlobalUnitAssignedContext.hxx>
#include <StepGeom_Placement.hxx>
#include <StepRepr_GlobalUnitAssignedContext.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <StepShape_GeometricSet.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>

#include <map>
#include <sstream>
#include <string>

namespace {

Handle(StepRepr_GlobalUnitAssignedContext) units_of(Handle(StepRepr_RepresentationContext) const & context)
{
    if (auto const both =
            Handle(StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx)::DownCast(context);
        !both.IsNull()) {
        return both->GlobalUnitAssignedContext();
    }
    if (auto const units =
            Handle(StepGeom_GeometricRepresentationContextAndGlobalUnitAssignedContext)::DownCast(context);
        !units.IsNull()) {
        return units->GlobalUnitAssignedContext();
    }
    return Handle(StepRepr_GlobalUnitAssignedContext)::DownCast(context);
}

// Of one length unit; 0 when the context has none.
double millimetres_of(Handle(StepRepr_RepresentationContext) const & context)
{
    auto const units = units_of(context);
    STEPConstruct_UnitContext factors;
    if (units.IsNull() || units->Units().IsNull()) {
        return 0;
    }
    factors.ComputeFactors(units);
    return factors.LengthDone() ? factors.LengthFactor() : 0;
}

std::string sign_of(double millimetres)
{
    if (auto const * unit = sdk_length_unit(millimetres); unit != nullptr) {
        return std::string(unit->name);
    }
    std::ostringstream text;
    text << millimetres << " mm";
    return text.str();
}

bool has_geometry(StepRepr_Representation const & shape)
{
    for (int index = 1; !shape.Items().IsNull() && index <= shape.NbItems(); ++index) {
        auto const item = shape.ItemsValue(index);
        if (!item.IsNull() &&
            (stepSolids::is_solid(item) || item->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
             item->IsKind(STANDARD_TYPE(StepShape_GeometricSet)))) {
            return true;
        }
    }
    return false;
}

} // namespace

void step_report_units(Handle(Interface_InterfaceModel) const & model, sdkContext & context)
{
    std::map<std::string, int> found;
    int without = 0;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(model->Value(number));
        if (shape.IsNull() || !has_geometry(*shape)) {
            continue;
        }
        if (double const unit = millimetres_of(shape->ContextOfItems()); unit > 0) {
            ++found[sign_of(unit)];
        } else {
            ++without;
        }
    }
    std::string all;
    for (auto const & [sign, shapes] : found) {
        context.reporter().output("step::Length unit of the file is %s", sign);
        all += (all.empty() ? "" : ", ") + sign;
    }
    if (found.size() > 1) {
        context.account().add(
            {.kind = "unit-mixed",
             .part = {},
             .place = {},
             .source = static_cast<double>(found.size()),
             .text =
                 sdkText("step::The parts of %s are in different length units: %s; each is converted from "
                         "its own",
                         context.file(), all)});
    }
    if (without > 0) {
        context.account().add(
            {.kind = "unit-assumed",
             .part = {},
             .place = {},
             .source = static_cast<double>(without),
             .text = sdkText("step::%s states no length unit for %d of its shapes; millimetres are assumed",
                             context.file(), without)});
    }
}
