#include "step/stepStatedProperties.h"

#include "step/stepUnits.h"

#include <Interface_InterfaceModel.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepBasic_MeasureWithUnit.hxx>
#include <StepBasic_NamedUnit.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_ReprItemAndMeasureWithUnit.hxx>
#include <StepRepr_Representation.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace {

std::string lower(Handle(TCollection_HAsciiString) const & text)
{
    std::string result = text.IsNull() ? "" : text->ToCString();
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char letter) { return std::tolower(letter); });
    return result;
}

template <std::size_t Size>
bool any_of(std::string const & name, char const * const (&names)[Size])
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

Handle(StepBasic_MeasureWithUnit) measure_of(Handle(StepRepr_RepresentationItem) const & item)
{
    if (auto const plain = Handle(StepRepr_MeasureRepresentationItem)::DownCast(item); !plain.IsNull()) {
        return plain->Measure();
    }
    auto const both = Handle(StepRepr_ReprItemAndMeasureWithUnit)::DownCast(item);
    return both.IsNull() ? nullptr : both->GetMeasureWithUnit();
}

// Nothing when the unit is missing or of another dimension and the context has none either.
std::optional<double> amount(StepBasic_MeasureWithUnit const & measure, double dimension,
                             std::optional<stepUnit> const & length)
{
    auto const entity = measure.UnitComponent().Value();
    auto const unit = step_unit(entity);
    double const value = measure.ValueComponent();
    if (unit && unit->dimension == dimension) {
        return value * unit->factor;
    }
    // Some exporters give areas and volumes the unit of length, or none.
    bool const plain_length = unit && unit->dimension == 1;
    if (plain_length || (entity.IsNull() && length)) {
        return value * std::pow(plain_length ? unit->factor : length->factor, dimension);
    }
    return std::nullopt;
}

class Reader {
public:
    explicit Reader(StepRepr_Representation const & representation)
        : m_length(step_unit(step_length_unit(representation.ContextOfItems())))
    {
    }

    void read(Handle(StepRepr_RepresentationItem) const & item, stepStatedProperties & into) const
    {
        auto const name = lower(item->Name());
        if (auto const point = Handle(StepGeom_CartesianPoint)::DownCast(item); !point.IsNull()) {
            if (any_of(name, {"centre point", "center point", "centroid", "centre of mass"})) {
                read_centroid(*point, into);
            } else {
                ++into.others;
            }
            return;
        }
        auto const measure = measure_of(item);
        bool const readable = !measure.IsNull() && !measure->ValueComponentMember().IsNull();
        if (readable && any_of(name, {"volume measure", "volume"})) {
            keep(amount(*measure, 3, m_length), into.volume, into);
        } else if (readable && any_of(name, {"surface area measure", "wetted area measure", "surface area",
                                             "wetted area"})) {
            keep(amount(*measure, 2, m_length), into.area, into);
        } else {
            ++into.others;
        }
    }

private:
    void read_centroid(StepGeom_CartesianPoint const & point, stepStatedProperties & into) const
    {
        if (point.NbCoordinates() != 3 || !m_length) {
            ++into.unclear;
            return;
        }
        gp_Pnt const centroid(point.CoordinatesValue(1), point.CoordinatesValue(2),
                              point.CoordinatesValue(3));
        into.centroid = gp_Pnt(centroid.XYZ() * m_length->factor);
    }

    static void keep(std::optional<double> const & value, std::optional<double> & into,
                     stepStatedProperties & stated)
    {
        if (value) {
            into = value;
        } else {
            ++stated.unclear;
        }
    }

    std::optional<stepUnit> m_length;
};

stepStatedProperties properties_of(Handle(StepRepr_PropertyDefinition) const & definition,
                                   Handle(StepRepr_Representation) const & representation)
{
    stepStatedProperties stated;
    if (representation.IsNull() || representation->Items().IsNull()) {
        return stated;
    }
    stated.definition = definition;
    Reader const reader(*representation);
    for (auto const & item : *representation->Items()) {
        if (!item.IsNull()) {
            reader.read(item, stated);
        }
    }
    return stated;
}

} // namespace

stepStatements step_stated_properties(
    Handle(Interface_InterfaceModel) const & model,
    std::function<bool(Handle(Standard_Transient) const & definition)> const & told_elsewhere)
{
    stepStatements all;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const link = Handle(StepRepr_PropertyDefinitionRepresentation)::DownCast(model->Value(number));
        auto const definition =
            link.IsNull() ? Handle(StepRepr_PropertyDefinition)() : link->Definition().PropertyDefinition();
        if (definition.IsNull()) {
            continue;
        }
        auto const name = lower(definition->Name());
        bool const counted = !told_elsewhere || !told_elsewhere(definition);
        if (name != "geometric validation property") {
            all.others += counted && name.ends_with("validation property") ? 1 : 0;
            continue;
        }
        auto stated = properties_of(definition, link->UsedRepresentation());
        all.others += counted ? stated.others : 0;
        if (stated.amounts() + stated.unclear > 0) {
            stated.place = model->StringLabel(definition)->ToCString();
            all.properties.push_back(std::move(stated));
        }
    }
    return all;
}
