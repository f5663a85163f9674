#include "step/stepShapeUnits.h"

#include "sdk/sdkLengthUnit.h"
#include "step/stepSolids.h"
#include "step/stepUnits.h"

#include <Interface_InterfaceModel.hxx>
#include <StepBasic_NamedUnit.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <StepShape_GeometricSet.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

// Of one length unit; 0 when the context has none.
double millimetres_of(Handle(StepRepr_RepresentationContext) const & context)
{
    auto const unit = context.IsNull() ? Handle(StepBasic_NamedUnit)() : step_length_unit(context);
    auto const length = unit.IsNull() ? std::nullopt : step_unit(unit);
    return length ? length->factor : 0;
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

std::vector<StepRepr_RepresentationItem const *> geometry_of(StepRepr_Representation const & shape)
{
    std::vector<StepRepr_RepresentationItem const *> result;
    for (int index = 1; !shape.Items().IsNull() && index <= shape.NbItems(); ++index) {
        auto const item = shape.ItemsValue(index);
        if (!item.IsNull() &&
            (stepSolids::is_solid(item) || item->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
             item->IsKind(STANDARD_TYPE(StepShape_GeometricSet)))) {
            result.push_back(item.get());
        }
    }
    return result;
}

} // namespace

void step_report_units(Handle(Interface_InterfaceModel) const & model, sdkContext & context)
{
    std::set<std::string> found;
    // A shape may stand in several representations; one with a unit is enough.
    std::set<StepRepr_RepresentationItem const *> with;
    std::set<StepRepr_RepresentationItem const *> without;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(model->Value(number));
        if (shape.IsNull()) {
            continue;
        }
        auto const geometry = geometry_of(*shape);
        if (geometry.empty()) {
            continue;
        }
        double const unit = millimetres_of(shape->ContextOfItems());
        if (unit > 0) {
            found.insert(sign_of(unit));
        }
        (unit > 0 ? with : without).insert(geometry.begin(), geometry.end());
    }
    auto const assumed = std::count_if(without.begin(), without.end(),
                                       [&](auto const * item) { return with.count(item) == 0; });
    std::string all;
    for (auto const & sign : found) {
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
    if (assumed > 0) {
        context.account().add(
            {.kind = "unit-assumed",
             .part = {},
             .place = {},
             .source = static_cast<double>(assumed),
             .text = sdkText("step::%s states no length unit for %d of its shapes; millimetres are assumed",
                             context.file(), assumed)});
    }
}
