#include "stl/stlHidden.h"

#include "sdk/sdkVisibility.h"

#include <TopExp_Explorer.hxx>

stlHiddenFaces stl_hidden_faces(sdkDocument const & document, TDF_Label const & part,
                                TopLoc_Location const & place)
{
    stlHiddenFaces hidden;
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(part, details);
    for (auto const & detail : details) {
        auto const shape = XCAFDoc_ShapeTool::GetShape(detail);
        if (shape.IsNull() || shape.ShapeType() > TopAbs_SOLID || !sdk_hidden(document, detail)) {
            continue;
        }
        ++hidden.bodies;
        for (TopExp_Explorer face(shape.Moved(place, Standard_False), TopAbs_FACE); face.More();
             face.Next()) {
            hidden.faces.Add(face.Current());
        }
    }
    return hidden;
}
