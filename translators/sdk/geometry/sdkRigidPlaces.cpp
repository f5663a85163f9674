#include "sdk/geometry/sdkRigidPlaces.h"

#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/sdkAttributes.h"
#include "sdk/sdkFlatten.h"
#include "sdk/sdkPlaced.h"
#include "sdk/sdkScaler.h"

#include <TDF_Tool.hxx>
#include <TopoDS_Iterator.hxx>

#include <map>
#include <utility>

namespace {

int count_places(TopoDS_Shape const & shape)
{
    int count = sdk_scale_of(shape.Location()) == 1 ? 0 : 1;
    if (shape.ShapeType() == TopAbs_COMPOUND) {
        for (TopoDS_Iterator member(shape, Standard_False, Standard_False); member.More(); member.Next()) {
            count += count_places(member.Value());
        }
    }
    return count;
}

std::string entry(TDF_Label const & label)
{
    TCollection_AsciiString text;
    TDF_Tool::Entry(label, text);
    return text.ToCString();
}

class Document {
public:
    explicit Document(sdkDocument & document) : m_document(document) {}

    int make_rigid()
    {
        int const places = make_parts_rigid();
        TDF_LabelSequence all;
        m_document.shapes()->GetShapes(all);
        for (auto const & label : all) {
            if (XCAFDoc_ShapeTool::IsAssembly(label)) {
                make_components_rigid(label);
            }
        }
        for (auto const & label : m_replaced) {
            remove_unused(label);
        }
        if (m_components > 0) {
            m_document.shapes()->UpdateAssemblies();
        }
        return places + m_components + flatten_free_places();
    }

private:
    int make_parts_rigid()
    {
        int places = 0;
        TDF_LabelSequence parts;
        for (auto const & part : m_document.parts()) {
            auto const shape = XCAFDoc_ShapeTool::GetShape(part);
            if (int const here = shape.IsNull() ? 0 : count_places(shape); here > 0) {
                places += here;
                parts.Append(part);
            }
        }
        sdk_edit_parts(m_document, parts, [](TDF_Label const &, TopoDS_Shape const &, sdkShapeHistory &) {
            return std::optional<TopoDS_Shape>();
        });
        return places;
    }

    // A free place has no assembly that another definition could be put into.
    int flatten_free_places()
    {
        TDF_LabelSequence placed;
        for (auto const & label : m_document.free_shapes()) {
            if (XCAFDoc_ShapeTool::IsReference(label) &&
                sdk_scale_of(XCAFDoc_ShapeTool::GetLocation(label)) != 1) {
                placed.Append(label);
            }
        }
        if (!placed.IsEmpty()) {
            sdk_flatten(m_document, placed, sdkPlacing::geometry);
        }
        return placed.Length();
    }

    void make_components_rigid(TDF_Label const & assembly)
    {
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(assembly, components);
        for (auto const & component : components) {
            auto const place = XCAFDoc_ShapeTool::GetLocation(component);
            TDF_Label referred;
            if (sdk_scale_of(place) == 1 || !XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
                continue;
            }
            add_component(assembly, component, scaled(referred, sdk_scale_of(place)), sdk_rigid_part(place));
            m_document.shapes()->RemoveComponent(component);
            m_replaced.Append(referred);
            ++m_components;
        }
    }

    void add_component(TDF_Label const & assembly, TDF_Label const & like, TDF_Label const & part,
                       TopLoc_Location const & place)
    {
        auto const component = m_document.shapes()->AddComponent(assembly, part, place);
        sdk_add_attributes(m_document, like, component);
        if (!m_document.colours()->IsVisible(like)) {
            m_document.colours()->SetVisibility(component, Standard_False);
        }
    }

    // What the factor makes of a part or an assembly.
    TDF_Label scaled(TDF_Label const & definition, double factor)
    {
        if (factor == 1) {
            return definition;
        }
        auto const key = std::pair(entry(definition), factor);
        if (auto const found = m_scaled.find(key); found != m_scaled.end()) {
            return found->second;
        }
        auto const label = XCAFDoc_ShapeTool::IsAssembly(definition) ? scaled_assembly(definition, factor)
                                                                     : scaled_part(definition, factor);
        sdk_add_attributes(m_document, definition, label);
        return m_scaled[key] = label;
    }

    TDF_Label scaled_part(TDF_Label const & part, double factor)
    {
        sdkShapeHistory history;
        sdkScaler scaler([&](TopoDS_Shape const & before, TopoDS_Shape const & after, double by) {
            history.scale(before, after, by);
        });
        gp_Trsf scale;
        scale.SetScaleFactor(factor);
        TopLoc_Location const scaling(scale);
        auto const shape = scaler(XCAFDoc_ShapeTool::GetShape(part), factor);
        auto const label = m_document.add_shape(shape, {});
        TDF_LabelSequence details;
        XCAFDoc_ShapeTool::GetSubShapes(part, details);
        for (auto const & detail : details) {
            auto const before = XCAFDoc_ShapeTool::GetShape(detail).Moved(scaling, Standard_False);
            auto const now = sdk_found_in(shape, history.now(before));
            TDF_Label copy;
            if (!now.IsNull() && m_document.shapes()->AddSubShape(label, now, copy)) {
                sdk_add_attributes(m_document, detail, copy);
            }
        }
        return label;
    }

    TDF_Label scaled_assembly(TDF_Label const & assembly, double factor)
    {
        auto const label = m_document.shapes()->NewShape();
        gp_Trsf scale;
        scale.SetScaleFactor(factor);
        TopLoc_Location const scaling(scale);
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(assembly, components);
        for (auto const & component : components) {
            TDF_Label referred;
            if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
                auto const place = scaling * XCAFDoc_ShapeTool::GetLocation(component);
                add_component(label, component, scaled(referred, sdk_scale_of(place)), sdk_rigid_part(place));
            }
        }
        return label;
    }

    // Only where nothing but the places that were replaced had used it.
    void remove_unused(TDF_Label const & label)
    {
        if (!XCAFDoc_ShapeTool::IsShape(label) || !XCAFDoc_ShapeTool::IsFree(label)) {
            return;
        }
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        TDF_LabelSequence used;
        for (auto const & component : components) {
            TDF_Label referred;
            if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
                used.Append(referred);
            }
        }
        m_document.shapes()->RemoveShape(label, Standard_True);
        for (auto const & referred : used) {
            remove_unused(referred);
        }
    }

    sdkDocument & m_document;
    std::map<std::pair<std::string, double>, TDF_Label> m_scaled;
    TDF_LabelSequence m_replaced;
    int m_components = 0;
};

} // namespace

int sdk_make_places_rigid(sdkDocument & document)
{
    return Document(document).make_rigid();
}
