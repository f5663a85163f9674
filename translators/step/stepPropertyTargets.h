#pragma once

#include "sdk/geometry/sdkMassProperties.h"

#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_PropertyDefinition.hxx>

#include <string>
#include <vector>

class StepRepr_NextAssemblyUsageOccurrence;
class StepRepr_RepresentationItem;
class STEPCAFControl_Reader;

// What became of the thing of which a file states properties.
struct stepPropertyTarget {
    // False when the file does not say of which product, instance or shape they are.
    bool known = false;
    // That it is, places or belongs to; null when none is known.
    Handle(StepBasic_ProductDefinition) product;
    std::string part; // name of the product; may be empty
    TDF_Label label;  // of a product or an instance; null when nothing arrived, and for single shapes
    std::vector<TopoDS_Shape> shapes;

    sdkMassProperties measure(sdkMassPropertiesOfLabels & labels) const;
};

// Finds these things after the transfer, as long as the labels are where the transfer has put them.
class stepPropertyTargets {
public:
    stepPropertyTargets(STEPCAFControl_Reader const & reader, Handle(XCAFDoc_ShapeTool) const & shapes);

    stepPropertyTarget find(Handle(StepRepr_PropertyDefinition) const & definition) const;

private:
    using Items = std::vector<Handle(StepRepr_RepresentationItem)>;

    stepPropertyTarget whole_product(Handle(StepBasic_ProductDefinition) const & definition) const;
    stepPropertyTarget instance(Handle(StepRepr_NextAssemblyUsageOccurrence) const & usage) const;
    stepPropertyTarget single_shapes(Items const & items) const;
    Items items_of_property(Handle(StepRepr_PropertyDefinition) const & property) const;
    Items items_of_aspect(Handle(Standard_Transient) const & aspect) const;
    // Those that an ITEM_IDENTIFIED_REPRESENTATION_USAGE names for this definition.
    void add_identified(Handle(Standard_Transient) const & definition, Items & items) const;

    STEPCAFControl_Reader const & m_reader;
    Handle(XCAFDoc_ShapeTool) m_shapes;
};
