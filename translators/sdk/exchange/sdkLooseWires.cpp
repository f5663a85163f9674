#include "sdk/exchange/sdkLooseWires.h"

#include "sdk/geometry/sdkPartEdit.h"

#include <BRepTools_WireExplorer.hxx>
#include <BRep_Builder.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

namespace {

// Edges that a walk along the wire passes.
int walked(TopoDS_Wire const & wire)
{
    TopTools_MapOfShape passed;
    for (BRepTools_WireExplorer walk(wire); walk.More(); walk.Next()) {
        passed.Add(walk.Current());
    }
    return passed.Extent();
}

std::optional<TopoDS_Shape> split(TDF_Label const &, TopoDS_Shape const & shape, sdkShapeHistory &)
{
    if (shape.ShapeType() != TopAbs_WIRE) {
        return std::nullopt;
    }
    BRep_Builder builder;
    TopoDS_Compound edges;
    builder.MakeCompound(edges);
    TopTools_MapOfShape distinct;
    for (TopoDS_Iterator member(shape); member.More(); member.Next()) {
        if (distinct.Add(member.Value())) {
            builder.Add(edges, member.Value());
        }
    }
    if (walked(TopoDS::Wire(shape)) == distinct.Extent()) {
        return std::nullopt;
    }
    return edges;
}

} // namespace

int sdk_split_loose_wires(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(), split).changed);
}
