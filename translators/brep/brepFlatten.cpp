#include "brep/brepFlatten.h"

#include "sdk/geometry/sdkJoin.h"
#include "sdk/sdkPlaced.h"

#include <vector>

namespace {

void collect(TDF_Label const & label, TopLoc_Location const & location, std::vector<TopoDS_Shape> & shapes)
{
    if (!XCAFDoc_ShapeTool::IsAssembly(label)) {
        shapes.push_back(sdk_placed(XCAFDoc_ShapeTool::GetShape(label), location));
        return;
    }
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(label, components);
    for (auto const & component : components) {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
            collect(referred, location * XCAFDoc_ShapeTool::GetLocation(component), shapes);
        }
    }
}

} // namespace

TopoDS_Shape brep_flattened(sdkDocument const & document)
{
    std::vector<TopoDS_Shape> shapes;
    for (auto const & label : document.free_shapes()) {
        collect(label, TopLoc_Location(), shapes);
    }
    return shapes.empty() ? TopoDS_Shape() : sdk_join(shapes);
}
