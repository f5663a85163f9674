#include "host/hostMerge.h"

#include "sdk/sdkAttributes.h"
#include "sdk/sdkFiles.h"

#include <TopLoc_Location.hxx>

hostMerge::hostMerge(sdkDocument & document, std::string const & output_file)
    : m_document(document), m_assembly(document.shapes()->NewShape())
{
    sdkDocument::set_name(m_assembly, sdk_file_stem(output_file));
}

void hostMerge::add(TDF_LabelSequence const & shapes, std::string const & input_file)
{
    auto const name = sdk_file_stem(input_file);
    TDF_LabelSequence added;
    for (auto const & shape : shapes) {
        if (!shape.IsEqual(m_assembly)) {
            added.Append(shape);
        }
    }
    if (added.IsEmpty()) {
        return;
    }
    TDF_Label whole = added.First();
    if (added.Length() > 1) {
        whole = m_document.shapes()->NewShape();
        sdkDocument::set_name(whole, name);
        for (auto const & shape : added) {
            place(whole, shape);
        }
    }
    sdkDocument::set_name(place(m_assembly, whole), name);
}

// A component places a definition; a free shape that is no more than a place of one makes way for it.
TDF_Label hostMerge::place(TDF_Label const & assembly, TDF_Label const & shape)
{
    TDF_Label definition;
    if (!XCAFDoc_ShapeTool::GetReferredShape(shape, definition)) {
        return m_document.shapes()->AddComponent(assembly, shape, TopLoc_Location());
    }
    auto const component =
        m_document.shapes()->AddComponent(assembly, definition, XCAFDoc_ShapeTool::GetLocation(shape));
    sdk_add_attributes(m_document, shape, component);
    m_document.shapes()->RemoveShape(shape, Standard_False);
    return component;
}

void hostMerge::finish()
{
    if (XCAFDoc_ShapeTool::NbComponents(m_assembly) == 0) {
        m_document.shapes()->RemoveShape(m_assembly, Standard_True);
    } else {
        m_document.shapes()->UpdateAssemblies();
    }
}
