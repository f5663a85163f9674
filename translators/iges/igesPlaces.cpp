#include "iges/igesPlaces.h"

#include "sdk/geometry/sdkRigidPlaces.h"
#include "sdk/sdkAttributes.h"
#include "sdk/sdkFlatten.h"

#include <TDF_LabelMap.hxx>
#include <TopoDS_Shape.hxx>

namespace {

bool is_body(TDF_Label const & definition)
{
    auto const kind = XCAFDoc_ShapeTool::GetShape(definition).ShapeType();
    return kind == TopAbs_COMPOUND || kind == TopAbs_SOLID;
}

void make_instances(sdkDocument & document, TDF_LabelSequence const & references, std::string const & name)
{
    auto const assembly = document.shapes()->NewShape();
    sdkDocument::set_name(assembly, name);
    for (auto const & reference : references) {
        TDF_Label definition;
        XCAFDoc_ShapeTool::GetReferredShape(reference, definition);
        auto const component =
            document.shapes()->AddComponent(assembly, definition, XCAFDoc_ShapeTool::GetLocation(reference));
        sdk_add_attributes(document, reference, component);
        document.shapes()->RemoveShape(reference, Standard_False);
    }
    document.shapes()->UpdateAssemblies();
}

} // namespace

void iges_settle_places(sdkDocument & document, TDF_LabelSequence const & labels, std::string const & name)
{
    TDF_LabelMap once;
    TDF_LabelMap shared;
    for (auto const & label : labels) {
        TDF_Label definition;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, definition) && !once.Add(definition)) {
            shared.Add(definition);
        }
    }
    TDF_LabelSequence alone;
    TDF_LabelSequence instances;
    for (auto const & label : labels) {
        TDF_Label definition;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, definition)) {
            (is_body(definition) && shared.Contains(definition) ? instances : alone).Append(label);
        }
    }
    sdk_flatten(document, alone, sdkPlacing::geometry);
    if (!instances.IsEmpty()) {
        make_instances(document, instances, name);
    }
    sdk_make_places_rigid(document);
}
