#include "step/stepPropertyTargets.h"

#include "step/stepInstances.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <StepAP242_ItemIdentifiedRepresentationUsage.hxx>
#include <StepBasic_GeneralProperty.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_ShapeAspect.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_FaceBasedSurfaceModel.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>
#include <gp_Trsf.hxx>

namespace {

bool has_volume_or_area(Standard_Transient const & item)
{
    return item.IsKind(STANDARD_TYPE(StepShape_SolidModel)) ||
           item.IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
           item.IsKind(STANDARD_TYPE(StepShape_FaceBasedSurfaceModel)) ||
           item.IsKind(STANDARD_TYPE(StepShape_ConnectedFaceSet));
}

std::string product_name(Handle(StepBasic_ProductDefinition) const & definition)
{
    auto const & formation = definition->Formation();
    if (formation.IsNull() || formation->OfProduct().IsNull() || formation->OfProduct()->Name().IsNull()) {
        return {};
    }
    return formation->OfProduct()->Name()->ToCString();
}

Handle(StepBasic_ProductDefinition) product_of(Handle(StepRepr_ShapeAspect) const & aspect)
{
    auto const & shape = aspect->OfShape();
    return shape.IsNull() ? nullptr : shape->Definition().ProductDefinition();
}

} // namespace

sdkMassProperties stepPropertyTarget::measure(sdkMassPropertiesOfLabels & labels) const
{
    if (!label.IsNull()) {
        return labels.of(label);
    }
    sdkMassProperties sum;
    for (auto const & shape : shapes) {
        sum.add(sdk_mass_properties(shape), gp_Trsf());
    }
    return sum;
}

stepPropertyTargets::stepPropertyTargets(STEPCAFControl_Reader const & reader,
                                         Handle(XCAFDoc_ShapeTool) const & shapes)
    : m_reader(reader), m_shapes(shapes)
{
}

stepPropertyTarget stepPropertyTargets::find(Handle(StepRepr_PropertyDefinition) const & definition) const
{
    auto const what = definition->Definition();
    auto items = items_of_property(definition);
    auto product_definition = what.ProductDefinition();
    auto usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(what.ProductDefinitionRelationship());
    if (auto const shape = what.ProductDefinitionShape(); !shape.IsNull()) {
        product_definition = shape->Definition().ProductDefinition();
        usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(
            shape->Definition().ProductDefinitionRelationship());
    }
    if (auto const aspect = what.ShapeAspect(); !aspect.IsNull()) {
        product_definition = product_of(aspect);
        if (items.empty()) {
            items = items_of_aspect(aspect);
        }
        if (items.empty()) {
            return {};
        }
    }
    if (!items.empty()) {
        auto target = single_shapes(items);
        target.product = product_definition;
        target.part = product_definition.IsNull() ? "" : product_name(product_definition);
        return target;
    }
    if (!usage.IsNull()) {
        return instance(usage);
    }
    return product_definition.IsNull() ? stepPropertyTarget() : whole_product(product_definition);
}

stepPropertyTarget stepPropertyTargets::whole_product(Handle(StepBasic_ProductDefinition)
                                                          const & definition) const
{
    stepPropertyTarget target;
    target.known = true;
    target.product = definition;
    target.part = product_name(definition);
    auto const process = m_reader.Reader().WS()->TransferReader()->TransientProcess();
    auto shape = TransferBRep::ShapeResult(process, definition);
    if (!shape.IsNull()) {
        shape.Location(TopLoc_Location());
        m_reader.GetShapeLabelMap().Find(shape, target.label);
    }
    return target;
}

stepPropertyTarget stepPropertyTargets::instance(Handle(StepRepr_NextAssemblyUsageOccurrence)
                                                     const & usage) const
{
    stepPropertyTarget target;
    target.known = true;
    if (auto const related = usage->RelatedProductDefinition(); !related.IsNull()) {
        target.product = related;
        target.part = product_name(related);
    }
    target.label = stepInstances(m_reader, m_shapes).label_of(usage);
    return target;
}

stepPropertyTarget stepPropertyTargets::single_shapes(Items const & items) const
{
    stepPropertyTarget target;
    target.known = true;
    auto const process = m_reader.Reader().WS()->TransferReader()->TransientProcess();
    for (auto const & item : items) {
        if (auto const shape = TransferBRep::ShapeResult(process, item); !shape.IsNull()) {
            target.shapes.push_back(shape);
        }
    }
    return target;
}

stepPropertyTargets::Items stepPropertyTargets::items_of_property(Handle(StepRepr_PropertyDefinition)
                                                                      const & property) const
{
    Items items;
    add_identified(property, items);
    auto const & graph = m_reader.Reader().WS()->Graph();
    for (auto sharing = graph.Sharings(property); sharing.More(); sharing.Next()) {
        // GENERAL_PROPERTY_ASSOCIATION is an entity that Open CASCADE does not know.
        for (auto shared = graph.Shareds(sharing.Value()); shared.More(); shared.Next()) {
            if (shared.Value()->IsKind(STANDARD_TYPE(StepBasic_GeneralProperty))) {
                add_identified(shared.Value(), items);
            }
        }
    }
    return items;
}

stepPropertyTargets::Items stepPropertyTargets::items_of_aspect(Handle(Standard_Transient)
                                                                    const & aspect) const
{
    Items items;
    add_identified(aspect, items);
    auto const & graph = m_reader.Reader().WS()->Graph();
    for (auto property = graph.Sharings(aspect); property.More(); property.Next()) {
        if (!property.Value()->IsKind(STANDARD_TYPE(StepRepr_PropertyDefinition))) {
            continue;
        }
        for (auto link = graph.Sharings(property.Value()); link.More(); link.Next()) {
            auto const shown = Handle(StepRepr_PropertyDefinitionRepresentation)::DownCast(link.Value());
            auto const shape = Handle(StepShape_ShapeRepresentation)::DownCast(
                shown.IsNull() ? Handle(StepRepr_Representation)() : shown->UsedRepresentation());
            if (shape.IsNull() || shape->Items().IsNull()) {
                continue;
            }
            for (auto const & item : *shape->Items()) {
                if (!item.IsNull() && has_volume_or_area(*item)) {
                    items.push_back(item);
                }
            }
        }
    }
    return items;
}

void stepPropertyTargets::add_identified(Handle(Standard_Transient) const & definition, Items & items) const
{
    auto const & graph = m_reader.Reader().WS()->Graph();
    for (auto sharing = graph.Sharings(definition); sharing.More(); sharing.Next()) {
        auto const usage = Handle(StepAP242_ItemIdentifiedRepresentationUsage)::DownCast(sharing.Value());
        for (int at = 1; !usage.IsNull() && at <= usage->NbIdentifiedItem(); ++at) {
            auto const & item = usage->IdentifiedItemValue(at);
            if (!item.IsNull() && has_volume_or_area(*item)) {
                items.push_back(item);
            }
        }
    }
}
