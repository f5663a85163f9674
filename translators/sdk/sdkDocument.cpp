#include "sdk/sdkDocument.h"

#include <BRep_Tool.hxx>
#include <TCollection_AsciiString.hxx>
#include <TDF_LabelMap.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>

namespace {

std::int64_t count_distinct(TopoDS_Shape const & shape, TopAbs_ShapeEnum kind, TopAbs_ShapeEnum avoided)
{
    TopTools_MapOfShape found;
    for (TopExp_Explorer explorer(shape, kind, avoided); explorer.More(); explorer.Next()) {
        found.Add(explorer.Current());
    }
    return found.Extent();
}

} // namespace

sdkEntityCount & sdkEntityCount::operator+=(sdkEntityCount const & other)
{
    faces += other.faces;
    curves += other.curves;
    points += other.points;
    solids += other.solids;
    facets_only += other.facets_only;
    return *this;
}

sdkEntityCount sdk_count_entities(TopoDS_Shape const & shape)
{
    sdkEntityCount count;
    if (shape.IsNull()) {
        return count;
    }
    TopTools_MapOfShape faces;
    for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
        if (!faces.Add(explorer.Current())) {
            continue;
        }
        TopLoc_Location location;
        auto const & face = TopoDS::Face(explorer.Current());
        if (BRep_Tool::Surface(face, location).IsNull()) {
            ++count.facets_only;
        }
    }
    count.faces = faces.Extent();
    count.solids = count_distinct(shape, TopAbs_SOLID, TopAbs_SHAPE);
    count.curves = count_distinct(shape, TopAbs_EDGE, TopAbs_FACE);
    count.points = count_distinct(shape, TopAbs_VERTEX, TopAbs_EDGE);
    return count;
}

sdkDocument::sdkDocument()
{
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", m_document);
    // Shapes without a name have none; they are not called SOLID or COMPOUND.
    XCAFDoc_ShapeTool::SetAutoNaming(Standard_False);
    m_shapes = XCAFDoc_DocumentTool::ShapeTool(m_document->Main());
    m_colours = XCAFDoc_DocumentTool::ColorTool(m_document->Main());
    m_layers = XCAFDoc_DocumentTool::LayerTool(m_document->Main());
    XCAFDoc_DocumentTool::SetLengthUnit(m_document, 1.0, UnitsMethods_LengthUnit_Millimeter);
}

TDF_LabelSequence sdkDocument::free_shapes() const
{
    TDF_LabelSequence labels;
    m_shapes->GetFreeShapes(labels);
    return labels;
}

TDF_LabelSequence sdkDocument::free_shapes_since(TDF_LabelSequence const & before) const
{
    TDF_LabelMap known;
    for (auto const & label : before) {
        known.Add(label);
    }
    TDF_LabelSequence added;
    for (auto const & label : free_shapes()) {
        if (!known.Contains(label)) {
            added.Append(label);
        }
    }
    return added;
}

TDF_LabelSequence sdkDocument::parts() const
{
    TDF_LabelSequence all;
    m_shapes->GetShapes(all);
    TDF_LabelSequence parts;
    for (auto const & label : all) {
        if (!XCAFDoc_ShapeTool::IsAssembly(label) && !XCAFDoc_ShapeTool::IsReference(label)) {
            parts.Append(label);
        }
    }
    return parts;
}

TDF_LabelSequence sdkDocument::parts_of(TDF_LabelSequence const & shapes)
{
    TDF_LabelMap seen;
    TDF_LabelSequence waiting = shapes;
    TDF_LabelSequence parts;
    while (!waiting.IsEmpty()) {
        TDF_Label const label = waiting.Last();
        waiting.Remove(waiting.Length());
        if (!seen.Add(label)) {
            continue;
        }
        if (TDF_Label referred; XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
            waiting.Append(referred);
        } else if (XCAFDoc_ShapeTool::IsAssembly(label)) {
            XCAFDoc_ShapeTool::GetComponents(label, waiting);
        } else {
            parts.Append(label);
        }
    }
    return parts;
}

bool sdkDocument::empty() const
{
    return free_shapes().IsEmpty();
}

sdkEntityCount sdkDocument::count_entities() const
{
    sdkEntityCount count;
    for (auto const & label : parts()) {
        count += sdk_count_entities(XCAFDoc_ShapeTool::GetShape(label));
    }
    return count;
}

TDF_Label sdkDocument::add_shape(TopoDS_Shape const & shape, std::string const & name)
{
    if (shape.IsNull()) {
        return {};
    }
    auto const label = m_shapes->AddShape(shape, Standard_False);
    set_name(label, name);
    return label;
}

std::string sdkDocument::name(TDF_Label const & label)
{
    Handle(TDataStd_Name) attribute;
    if (label.IsNull() || !label.FindAttribute(TDataStd_Name::GetID(), attribute)) {
        return {};
    }
    auto const & wide = attribute->Get();
    std::string text(static_cast<std::size_t>(wide.LengthOfCString()) + 1, '\0');
    Standard_PCharacter begin = text.data();
    wide.ToUTF8CString(begin);
    text.pop_back();
    return text;
}

void sdkDocument::set_name(TDF_Label const & label, std::string const & name)
{
    if (!label.IsNull() && !name.empty()) {
        TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str(), Standard_True));
    }
}
