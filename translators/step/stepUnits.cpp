#include "step/stepUnits.h"

#include <STEPConstruct_UnitContext.hxx>
#include <StepBasic_AreaUnit.hxx>
#include <StepBasic_ConversionBasedUnit.hxx>
#include <StepBasic_ConversionBasedUnitAndLengthUnit.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_HArray1OfNamedUnit.hxx>
#include <StepBasic_LengthUnit.hxx>
#include <StepBasic_MeasureWithUnit.hxx>
#include <StepBasic_SiUnit.hxx>
#include <StepBasic_SiUnitAndAreaUnit.hxx>
#include <StepBasic_SiUnitAndLengthUnit.hxx>
#include <StepBasic_SiUnitAndVolumeUnit.hxx>
#include <StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx.hxx>
#include <StepGeom_GeometricRepresentationContextAndGlobalUnitAssignedContext.hxx>
#include <StepRepr_GlobalUnitAssignedContext.hxx>

#include <cmath>

namespace {

// Units that are defined by units are followed so far, such as foot, inch, centimetre, metre; one that is
// defined by itself ends there.
constexpr int deepest = 5;

std::optional<stepUnit> unit_of(Handle(Standard_Transient) const & entity, int depth);

std::optional<stepUnit> si_unit(StepBasic_SiUnit const & unit)
{
    double const prefix = unit.HasPrefix() ? STEPConstruct_UnitContext::ConvertSiPrefix(unit.Prefix()) : 1.0;
    if (unit.Name() != StepBasic_sunMetre) {
        return std::nullopt;
    }
    return stepUnit{1000 * prefix, 1};
}

std::optional<stepUnit> conversion_based(StepBasic_ConversionBasedUnit const & unit, int depth)
{
    auto const & measure = unit.ConversionFactor();
    if (measure.IsNull() || measure->ValueComponentMember().IsNull()) {
        return std::nullopt;
    }
    auto result = unit_of(measure->UnitComponent().Value(), depth);
    if (result) {
        result->factor *= measure->ValueComponent();
    }
    return result;
}

std::optional<stepUnit> derived(StepBasic_DerivedUnit const & unit, int depth)
{
    stepUnit product{1, 0};
    if (unit.Elements().IsNull()) {
        return std::nullopt;
    }
    for (int at = 1; at <= unit.NbElements(); ++at) {
        auto const & element = unit.ElementsValue(at);
        auto const one = element.IsNull() ? std::nullopt : unit_of(element->Unit(), depth);
        if (!one) {
            return std::nullopt;
        }
        product.factor *= std::pow(one->factor, element->Exponent());
        product.dimension += one->dimension * element->Exponent();
    }
    return product;
}

std::optional<stepUnit> unit_of(Handle(Standard_Transient) const & entity, int depth)
{
    if (depth == deepest) {
        return std::nullopt;
    }
    if (auto const si = Handle(StepBasic_SiUnit)::DownCast(entity); !si.IsNull()) {
        return si_unit(*si);
    }
    if (auto const unit = Handle(StepBasic_ConversionBasedUnit)::DownCast(entity); !unit.IsNull()) {
        return conversion_based(*unit, depth + 1);
    }
    if (auto const unit = Handle(StepBasic_DerivedUnit)::DownCast(entity); !unit.IsNull()) {
        return derived(*unit, depth + 1);
    }
    return std::nullopt;
}

Handle(StepBasic_HArray1OfNamedUnit) units_of(Handle(StepRepr_RepresentationContext) const & context)
{
    using Plain = StepRepr_GlobalUnitAssignedContext;
    using Geometric = StepGeom_GeometricRepresentationContextAndGlobalUnitAssignedContext;
    using Uncertain = StepGeom_GeomRepContextAndGlobUnitAssCtxAndGlobUncertaintyAssCtx;
    if (auto const plain = Handle(Plain)::DownCast(context); !plain.IsNull()) {
        return plain->Units();
    }
    if (auto const geometric = Handle(Geometric)::DownCast(context); !geometric.IsNull()) {
        return geometric->Units();
    }
    auto const uncertain = Handle(Uncertain)::DownCast(context);
    return uncertain.IsNull() ? nullptr : uncertain->Units();
}

} // namespace

std::optional<stepUnit> step_unit(Handle(Standard_Transient) const & unit)
{
    auto const result = unit_of(unit, 0);
    // An amount in an impossible unit is no amount.
    return result && std::isfinite(result->factor) && result->factor > 0 ? result : std::nullopt;
}

Handle(StepBasic_NamedUnit) step_length_unit(Handle(StepRepr_RepresentationContext) const & context)
{
    auto const units = units_of(context);
    if (units.IsNull()) {
        return nullptr;
    }
    for (auto const & unit : *units) {
        if (auto const one = step_unit(unit); one && one->dimension == 1) {
            return unit;
        }
    }
    return nullptr;
}
