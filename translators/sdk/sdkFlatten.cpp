#include "sdk/sdkFlatten.h"

#include "sdk/sdkAttributes.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRep_Builder.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Compound.hxx>

#include <optional>

namespace {

// A copy of a shape whose place has become part of its geometry: a free shape of a document has no place of
// its own.
class Placement {
public:
    Placement(TopoDS_Shape const & shape, TopLoc_Location const & location, sdkPlacing placing)
        : m_location(location)
    {
        // Triangles without a surface are not transformed.
        if (placing == sdkPlacing::compound || sdk_count_entities(shape).facets_only > 0) {
            TopoDS_Compound compound;
            BRep_Builder builder;
            builder.MakeCompound(compound);
            builder.Add(compound, shape.Moved(location));
            m_shape = compound;
        } else {
            m_transform.emplace(shape, location.Transformation(), Standard_True);
            m_shape = m_transform->Shape();
        }
    }

    TopoDS_Shape const & shape() const { return m_shape; }

    TopoDS_Shape placed(TopoDS_Shape const & detail) const
    {
        return m_transform ? m_transform->ModifiedShape(detail) : detail.Moved(m_location);
    }

private:
    TopLoc_Location m_location;
    TopoDS_Shape m_shape;
    std::optional<BRepBuilderAPI_Transform> m_transform;
};

class Flattening {
public:
    Flattening(sdkDocument & document, sdkPlacing placing) : m_document(document), m_placing(placing) {}

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
        Placement const placement(XCAFDoc_ShapeTool::GetShape(part), location, m_placing);
        auto const label = m_document.add_shape(placement.shape(), {});
        sdk_add_attributes(m_document, part, label);
        for (int place = places.Length(); place >= 1; --place) {
            sdk_add_attributes(m_document, places(place), label);
        }
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(part, details);
        for (auto const & detail : details) {
            TDF_Label copy;
            auto const placed = placement.placed(XCAFDoc_ShapeTool::GetShape(detail));
            if (m_document.shapes()->AddSubShape(label, placed, copy)) {
                sdk_add_attributes(m_document, detail, copy);
            }
        }
    }

    sdkDocument & m_document;
    sdkPlacing m_placing;
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

int sdk_flatten(sdkDocument & document, TDF_LabelSequence const & free_shapes, sdkPlacing placing)
{
    Flattening flattening(document, placing);
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
