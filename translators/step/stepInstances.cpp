#include "step/stepInstances.h"

#include "step/stepInstanceStyles.h"

#include <STEPCAFControl_Reader.hxx>
#include <STEPConstruct_Tool.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_WorkSession.hxx>

TDF_Label stepInstances::label_of(Handle(StepRepr_NextAssemblyUsageOccurrence) const & usage) const
{
    STEPConstruct_Tool const tool(m_reader.Reader().WS());
    return STEPCAFControl_Reader::FindInstance(usage, m_shapes, tool, m_reader.GetShapeLabelMap());
}

TDF_Label stepInstances::label_of(StepVisual_StyledItem const & style) const
{
    auto const usage = step_usage_of(style, m_reader.Reader().WS()->Graph());
    return usage.IsNull() ? TDF_Label() : label_of(usage);
}
