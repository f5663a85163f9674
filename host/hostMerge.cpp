#include "host/hostMerge.h"

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
            m_document.shapes()->AddComponent(whole, shape, TopLoc_Location());
        }
    }
    auto const component = m_document.shapes()->AddComponent(m_assembly, whole, TopLoc_Location());
    sdkDocument::set_name(component, name);
}

void hostMerge::finish()
{
    if (XCAFDoc_ShapeTool::NbComponents(m_assembly) == 0) {
        m_document.shapes()->RemoveShape(m_assembly, Standard_True);
    } else {
        m_document.shapes()->UpdateAssemblies();
    }
}
