#include "step/stepValidationOutput.h"

#include "sdk/geometry/sdkMassProperties.h"
#include "step/stepUnits.h"

#include <NCollection_DataMap.hxx>
#include <Standard_Failure.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_HArray1OfDerivedUnitElement.hxx>
#include <StepBasic_MeasureValueMember.hxx>
#include <StepBasic_NamedUnit.hxx>
#include <StepBasic_Unit.hxx>
#include <StepData_StepModel.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_MeasureRepresentationItem.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_FinderProcess.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>

#include <cmath>
#include <vector>

namespace {

Handle(TCollection_HAsciiString) text(char const * words)
{
    return new TCollection_HAsciiString(words);
}

// The units of areas and volumes, one for each unit of length.
class DerivedUnits {
public:
    explicit DerivedUnits(double exponent) : m_exponent(exponent) {}

    Handle(StepBasic_DerivedUnit) of(Handle(StepBasic_NamedUnit) const & length)
    {
        if (auto const * const known = m_units.Seek(length)) {
            return *known;
        }
        Handle(StepBasic_DerivedUnitElement) element = new StepBasic_DerivedUnitElement;
        element->Init(length, m_exponent);
        Handle(StepBasic_HArray1OfDerivedUnitElement) elements =
            new StepBasic_HArray1OfDerivedUnitElement(1, 1, element);
        Handle(StepBasic_DerivedUnit) unit = new StepBasic_DerivedUnit;
        unit->Init(elements);
        m_units.Bind(length, unit);
        return unit;
    }

private:
    double m_exponent;
    NCollection_DataMap<Handle(StepBasic_NamedUnit), Handle(StepBasic_DerivedUnit)> m_units;
};

class Output {
public:
    explicit Output(Handle(StepData_StepModel) const & model) : m_model(model) {}

    // False when the shape has neither volume nor area, or its file no unit of length.
    bool add(StepShape_ShapeDefinitionRepresentation const & shown, sdkMassProperties const & properties)
    {
        auto const target =
            Handle(StepRepr_ProductDefinitionShape)::DownCast(shown.Definition().PropertyDefinition());
        auto const & context = shown.UsedRepresentation()->ContextOfItems();
        auto const length = step_length_unit(context);
        if (target.IsNull() || length.IsNull()) {
            return false;
        }
        auto const items = items_of(properties, length);
        if (items.empty()) {
            return false;
        }
        Handle(StepRepr_HArray1OfRepresentationItem) array =
            new StepRepr_HArray1OfRepresentationItem(1, int(items.size()));
        for (std::size_t at = 0; at < items.size(); ++at) {
            array->SetValue(int(at) + 1, items[at]);
        }
        Handle(StepRepr_Representation) representation = new StepRepr_Representation;
        representation->Init(text("volume, surface area and centroid"), array, context);
        attach(target, representation);
        return true;
    }

private:
    std::vector<Handle(StepRepr_RepresentationItem)> items_of(sdkMassProperties const & properties,
                                                              Handle(StepBasic_NamedUnit) const & length)
    {
        double const millimetres = step_unit(length)->factor;
        std::vector<Handle(StepRepr_RepresentationItem)> items;
        if (properties.volume != 0) {
            items.push_back(measure("volume measure", "VOLUME_MEASURE",
                                    properties.volume / std::pow(millimetres, 3), m_volumes.of(length)));
        }
        if (properties.area != 0) {
            items.push_back(measure("surface area measure", "AREA_MEASURE",
                                    properties.area / std::pow(millimetres, 2), m_areas.of(length)));
        }
        if (auto const centroid = properties.centroid()) {
            Handle(StepGeom_CartesianPoint) point = new StepGeom_CartesianPoint;
            point->Init3D(text("centre point"), centroid->X() / millimetres, centroid->Y() / millimetres,
                          centroid->Z() / millimetres);
            items.push_back(point);
        }
        return items;
    }

    static Handle(StepRepr_MeasureRepresentationItem)
        measure(char const * name, char const * type, double value,
                Handle(StepBasic_DerivedUnit) const & unit)
    {
        Handle(StepBasic_MeasureValueMember) member = new StepBasic_MeasureValueMember;
        member->SetName(type);
        member->SetReal(value);
        StepBasic_Unit selected;
        selected.SetValue(unit);
        Handle(StepRepr_MeasureRepresentationItem) item = new StepRepr_MeasureRepresentationItem;
        item->Init(text(name), member, selected);
        return item;
    }

    void attach(Handle(StepRepr_ProductDefinitionShape) const & target,
                Handle(StepRepr_Representation) const & representation)
    {
        StepRepr_CharacterizedDefinition what;
        what.SetValue(target);
        Handle(StepRepr_PropertyDefinition) property = new StepRepr_PropertyDefinition;
        property->Init(text("geometric validation property"), Standard_True,
                       text("volume, surface area and centroid"), what);
        StepRepr_RepresentedDefinition represented;
        represented.SetValue(property);
        Handle(StepRepr_PropertyDefinitionRepresentation) link =
            new StepRepr_PropertyDefinitionRepresentation;
        link->Init(represented, representation);
        m_model->AddWithRefs(link);
    }

    Handle(StepData_StepModel) m_model;
    DerivedUnits m_areas{2};
    DerivedUnits m_volumes{3};
};

} // namespace

std::int64_t step_add_validation(Handle(XSControl_WorkSession) const & session, sdkDocument const & document)
{
    auto const process = session->TransferWriter()->FinderProcess();
    Output output(Handle(StepData_StepModel)::DownCast(session->Model()));
    sdkMassPropertiesOfLabels measured;
    auto const add = [&](TDF_Label const & label, StepShape_ShapeDefinitionRepresentation const & shown) {
        try {
            auto const properties = measured.of(label);
            return properties.finite() && output.add(shown, properties);
        } catch (Standard_Failure const &) {
            // A product that cannot be measured states nothing of itself.
            return false;
        }
    };
    TDF_LabelSequence labels;
    document.shapes()->GetShapes(labels);
    std::int64_t products = 0;
    for (auto const & label : labels) {
        auto const shape = XCAFDoc_ShapeTool::GetShape(label);
        Handle(StepShape_ShapeDefinitionRepresentation) shown;
        // A shape that stands free at a place is written as an assembly of the one that it refers to. What
        // was not written has no definition of its shape.
        if (!shape.IsNull() && !XCAFDoc_ShapeTool::IsReference(label) &&
            process->FindTypedTransient(TransferBRep::ShapeMapper(process, shape),
                                        STANDARD_TYPE(StepShape_ShapeDefinitionRepresentation), shown) &&
            add(label, *shown)) {
            ++products;
        }
    }
    return products;
}
