#include "iges/igesPlaces.h"

#include "sdk/geometry/sdkRigidPlaces.h"
#include "sdk/sdkAttributes.h"
#include "sdk/sdkFlatten.h"
#include "sdk/sdkPlaced.h"

#include <TopoDS_Shape.hxx>

namespace {

bool can_be_instance(TDF_Label const & reference, TDF_Label const & definition)
{
    auto const kind = XCAFDoc_ShapeTool::GetShape(definition).ShapeType();
    bool const body = kind == TopAbs_COMPOUND || kind == TopAbs_SOLID;
    return body && sdk_scale_of(XCAFDoc_ShapeTool::GetLocation(reference)) == 1;
}

int users_of(TDF_Label const & definition)
{
    TDF_LabelSequence users;
    return XCAFDoc_ShapeTool::GetUsers(definition, users);
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
    TDF_LabelSequence fixed;
    TDF_LabelSequence movable;
    for (auto const & label : labels) {
        TDF_Label definition;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, definition)) {
            (can_be_instance(label, definition) ? movable : fixed).Append(label);
        }
    }
    sdk_flatten(document, fixed, sdkPlacing::geometry);
    TDF_LabelSequence alone;
    TDF_LabelSequence instances;
    for (auto const & label : movable) {
        TDF_Label definition;
        XCAFDoc_ShapeTool::GetReferredShape(label, definition);
        (users_of(definition) > 1 ? instances : alone).Append(label);
    }
    sdk_flatten(document, alone, sdkPlacing::geometry);
    if (!instances.IsEmpty()) {
        make_instances(document, instances, name);
    }
    // Those within groups.
    sdk_make_places_rigid(document);
}
