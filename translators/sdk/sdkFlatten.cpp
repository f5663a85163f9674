#include "sdk/sdkFlatten.h"

#include "sdk/sdkAttributes.h"
#include "sdk/sdkPlaced.h"
#include "sdk/sdkScaler.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRep_Builder.hxx>
#include <TDF_LabelMap.hxx>
#include <TopAbs.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_DataMapOfShapeShape.hxx>
#include <TopoDS_Compound.hxx>

#include <optional>

namespace {

// A part at another place: a free shape of a document has no place of its own, so the place becomes part of
// the geometry, or the part lies in a compound.
class Placement {
public:
    Placement(TopoDS_Shape const & shape, TopLoc_Location const & location, sdkPlacing placing)
        : m_location(location)
    {
        bool const rigid = sdk_scale_of(location) == 1;
        // Triangles without a surface are not transformed by the toolkit.
        if (rigid && (placing == sdkPlacing::compound || sdk_count_entities(shape).facets_only > 0)) {
            m_shape = in_compound(shape.Moved(location));
        } else if (rigid) {
            m_transform.emplace(shape, location.Transformation(), Standard_True);
            m_shape = m_transform->Shape();
        } else {
            sdkScaler scaler([this](TopoDS_Shape const & before, TopoDS_Shape const & after, double) {
                m_scaled.Bind(before, after);
            });
            m_shape = in_compound(scaler(shape.Moved(location, Standard_False), 1));
        }
    }

    TopoDS_Shape const & shape() const { return m_shape; }

    TopoDS_Shape placed(TopoDS_Shape const & detail) const
    {
        if (m_transform) {
            return m_transform->ModifiedShape(detail);
        }
        TopoDS_Shape scaled;
        auto const base = detail.Located(TopLoc_Location()).Oriented(TopAbs_FORWARD);
        if (!m_scaled.Find(base, scaled)) {
            return detail.Moved(sdk_rigid_part(m_location));
        }
        auto const place = m_location * detail.Location();
        auto const now = scaled.Located(sdk_rigid_part(place))
                             .Oriented(TopAbs::Compose(detail.Orientation(), scaled.Orientation()));
        return sdk_found_in(m_shape, now);
    }

private:
    static TopoDS_Shape in_compound(TopoDS_Shape const & shape)
    {
        TopoDS_Compound compound;
        BRep_Builder builder;
        builder.MakeCompound(compound);
        builder.Add(compound, shape);
        return compound;
    }

    TopLoc_Location m_location;
    TopoDS_Shape m_shape;
    TopTools_DataMapOfShapeShape m_scaled;
    std::optional<BRepBuilderAPI_Transform> m_transform;
};

class Flattening {
public:
    Flattening(sdkDocument & document, sdkPlacing placing) : m_document(document), m_placing(placing) {}

    // The places are those from the assembly down to the label, and the assemblies, the outermost first.
    void flatten(TDF_Label const & label, TopLoc_Location const & location, TDF_LabelSequence const & places)
    {
        if (TDF_Label referred; XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
            TDF_LabelSequence inner = places;
            inner.Append(label);
            flatten(referred, location * XCAFDoc_ShapeTool::GetLocation(label), inner);
        } else if (XCAFDoc_ShapeTool::IsAssembly(label)) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(label, components);
            TDF_LabelSequence inner = places;
            inner.Append(label);
            for (auto const & component : components) {
                flatten(component, location, inner);
            }
        } else {
            add_part(label, location, places);
        }
    }

private:
    void add_part(TDF_Label const & part, TopLoc_Location const & location, TDF_LabelSequence const & places)
    {
        Placement const placement(XCAFDoc_ShapeTool::GetShape(part), location, m_placing);
        auto const label = m_document.add_shape(placement.shape(), {});
        if (!places.IsEmpty() && XCAFDoc_ShapeTool::IsReference(places.Last())) {
            // Somebody has painted just this instance.
            sdk_add_colours(m_document, places.Last(), label);
        }
        sdk_add_attributes(m_document, part, label);
        for (int place = places.Length(); place >= 1; --place) {
            sdk_add_attributes(m_document, places(place), label);
        }
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(part, details);
        for (auto const & detail : details) {
            TDF_Label copy;
            auto const placed = placement.placed(XCAFDoc_ShapeTool::GetShape(detail));
            if (!placed.IsNull() && m_document.shapes()->AddSubShape(label, placed, copy)) {
                sdk_add_attributes(m_document, detail, copy);
            }
        }
    }

    sdkDocument & m_document;
    sdkPlacing m_placing;
};

// Whatever a shape uses, and the shape itself: each behind all that it uses.
void append_used(TDF_Label const & label, TDF_LabelMap & seen, TDF_LabelSequence & used)
{
    if (!seen.Add(label)) {
        return;
    }
    TDF_LabelSequence places;
    XCAFDoc_ShapeTool::GetComponents(label, places);
    places.Append(label);
    for (auto const & place : places) {
        if (TDF_Label referred; XCAFDoc_ShapeTool::GetReferredShape(place, referred)) {
            append_used(referred, seen, used);
        }
    }
    used.Append(label);
}

// Removes a shape that nothing uses, and then all that only it used. The toolkit removes the definition
// together with a reference to it, so what that uses is looked up before.
void remove_unused(sdkDocument & document, TDF_Label const & label)
{
    TDF_LabelMap seen;
    TDF_LabelSequence used;
    append_used(label, seen, used);
    for (int at = used.Length(); at >= 1; --at) {
        if (XCAFDoc_ShapeTool::IsShape(used(at)) && XCAFDoc_ShapeTool::IsFree(used(at))) {
            document.shapes()->RemoveShape(used(at), Standard_True);
        }
    }
}

} // namespace

int sdk_flatten(sdkDocument & document, TDF_LabelSequence const & free_shapes, sdkPlacing placing)
{
    Flattening flattening(document, placing);
    TDF_LabelSequence flattened;
    int assemblies = 0;
    for (auto const & label : free_shapes) {
        TDF_Label whole = label;
        bool const placed = XCAFDoc_ShapeTool::GetReferredShape(label, whole);
        bool const assembly = XCAFDoc_ShapeTool::IsAssembly(whole);
        if (placed || assembly) {
            flattening.flatten(label, TopLoc_Location(), {});
            flattened.Append(label);
            assemblies += assembly ? 1 : 0;
        }
    }
    for (auto const & label : flattened) {
        remove_unused(document, label);
    }
    return assemblies;
}
