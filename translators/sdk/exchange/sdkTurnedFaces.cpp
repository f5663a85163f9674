#include "sdk/exchange/sdkTurnedFaces.h"

#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkSolids.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shell.hxx>

namespace {

TopoDS_Shell unturned(TopoDS_Shape const & turned)
{
    TopoDS_Shell shell;
    BRep_Builder builder;
    builder.MakeShell(shell);
    // Each face comes with the orientation that it has in the whole.
    for (TopoDS_Iterator face(turned); face.More(); face.Next()) {
        builder.Add(shell, face.Value());
    }
    shell.Closed(turned.Closed());
    return shell;
}

std::optional<TopoDS_Shape> in_shells(TDF_Label const &, TopoDS_Shape const & shape,
                                      sdkShapeHistory & /*history*/)
{
    if (shape.Orientation() != TopAbs_REVERSED) {
        return std::nullopt;
    }
    if (shape.ShapeType() == TopAbs_FACE) {
        return sdk_shell_of(shape);
    }
    return shape.ShapeType() == TopAbs_SHELL ? std::optional<TopoDS_Shape>(unturned(shape)) : std::nullopt;
}

} // namespace

int sdk_turn_faces_in_shells(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(), in_shells).changed);
}
