#pragma once

#include <StepVisual_StyledItem.hxx>
#include <TDF_Label.hxx>

class STEPCAFControl_Reader;
class StepRepr_NextAssemblyUsageOccurrence;
class XCAFDoc_ShapeTool;

// Finds in a document what the instances of a file have become, after the transfer.
class stepInstances {
public:
    // Both must outlive the instances.
    stepInstances(STEPCAFControl_Reader const & reader, Handle(XCAFDoc_ShapeTool) const & shapes)
        : m_reader(reader), m_shapes(shapes)
    {
    }

    // Null when the document does not have the instance.
    TDF_Label label_of(Handle(StepRepr_NextAssemblyUsageOccurrence) const & usage) const;
    // The instance of which the style speaks; null when it speaks of its item in every place.
    TDF_Label label_of(StepVisual_StyledItem const & style) const;

private:
    STEPCAFControl_Reader const & m_reader;
    Handle(XCAFDoc_ShapeTool) const & m_shapes;
};
