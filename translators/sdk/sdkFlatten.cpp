#include "sdk/sdkFlatten.h"

#include "sdk/sdkAttributes.h"

#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>

namespace {

class Flattening {
public:
    explicit Flattening(sdkDocument & document) : m_document(document) {}

    // The places are those from the assembly down to the label, the outermost first.
    void flatten(TDF_Label const & label, TopLoc_Location const & location, TDF_LabelSequence const & places)
    {
        if (!XCAFDoc_ShapeTool::IsAssembly(label)) {
            add_part(label, location, places);
            return;
        }
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (auto const & component : components) {
            TDF_Label referred;
            if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
                TDF_LabelSequence inner = places;
                inner.Append(component);
                flatten(referred, location * XCAFDoc_ShapeTool::GetLocation(component), inner);
            }
        }
    }

private:
    void add_part(TDF_Label const & part, TopLoc_Location const & location, TDF_LabelSequence const & places)
    {
        auto const shape = XCAFDoc_ShapeTool::GetShape(part).Moved(location);
        auto const label = m_document.shapes()->AddShape(shape, Standard_False);
        sdk_add_attributes(m_document, part, label);
        for (int place = places.Length(); place >= 1; --place) {
            sdk_add_attributes(m_document, places(place), label);
        }
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(part, details);
        for (auto const & detail : details) {
            TDF_Label copy;
            auto const moved = XCAFDoc_ShapeTool::GetShape(detail).Moved(location);
            m_document.shapes()->AddSubShape(label, moved, copy);
            if (!copy.IsNull()) {
                sdk_add_attributes(m_document, detail, copy);
            }
        }
    }

    sdkDocument & m_document;
};

// Removes a shape that nothing uses, and then all that only it used.
void remove_unused(sdkDocument & document, TDF_Label const & label)
{
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(label, components);
    TDF_LabelSequence used;
    for (auto const & component : components) {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
            used.Append(referred);
        }
    }
    document.shapes()->RemoveShape(label, Standard_True);
    for (auto const & referred : used) {
        if (XCAFDoc_ShapeTool::IsShape(referred) && XCAFDoc_ShapeTool::IsFree(referred)) {
            remove_unused(document, referred);
        }
    }
}

} // namespace

int sdk_flatten(sdkDocument & document, TDF_LabelSequence const & free_shapes)
{
    Flattening flattening(document);
    TDF_LabelSequence assemblies;
    for (auto const & label : free_shapes) {
        if (XCAFDoc_ShapeTool::IsAssembly(label)) {
            flattening.flatten(label, TopLoc_Location(), {});
            assemblies.Append(label);
        }
    }
    for (auto const & label : assemblies) {
        remove_unused(document, label);
    }
    return assemblies.Length();
}
