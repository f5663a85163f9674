#include "sdk/exchange/sdkZeroEdges.h"

#include "sdk/exchange/sdkRepairCheck.h"
#include "sdk/geometry/sdkEdgeRange.h"
#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkReShapeHistory.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>

#include <algorithm>

namespace {

bool has_no_length(TopoDS_Edge const & edge)
{
    auto const range = sdk_bounded_range(edge);
    if (!range) {
        return false;
    }
    BRepAdaptor_Curve const curve(edge);
    auto const begin = curve.Value(range->first);
    for (double const part : {1.0, 0.5, 0.25, 0.75}) {
        if (curve.Value(range->at(part)).Distance(begin) > Precision::Confusion()) {
            return false;
        }
    }
    return true;
}

TopTools_MapOfShape zero_edges(TopoDS_Shape const & shape)
{
    TopTools_MapOfShape found;
    for (TopExp_Explorer wire(shape, TopAbs_WIRE); wire.More(); wire.Next()) {
        TopTools_MapOfShape here;
        int others = 0;
        for (TopoDS_Iterator member(wire.Current()); member.More(); member.Next()) {
            if (has_no_length(TopoDS::Edge(member.Value()))) {
                here.Add(member.Value());
            } else {
                ++others;
            }
        }
        if (others > 0) {
            found.Unite(here);
        }
    }
    return found;
}

// One vertex for the two at the ends of an edge, which covers both.
void join_ends(TopoDS_Edge const & edge, ShapeBuild_ReShape & context)
{
    auto const one = TopoDS::Vertex(context.Apply(TopExp::FirstVertex(edge).Oriented(TopAbs_FORWARD)));
    auto const other = TopoDS::Vertex(context.Apply(TopExp::LastVertex(edge).Oriented(TopAbs_FORWARD)));
    if (one.IsSame(other)) {
        return;
    }
    auto const point = BRep_Tool::Pnt(one);
    BRep_Builder builder;
    TopoDS_Vertex both;
    builder.MakeVertex(both, point,
                       std::max(BRep_Tool::Tolerance(one),
                                BRep_Tool::Tolerance(other) + point.Distance(BRep_Tool::Pnt(other))));
    context.Replace(one, both);
    context.Replace(other, both);
}

class Drop {
public:
    std::int64_t count() const { return m_count; }

    std::optional<TopoDS_Shape> operator()(TopoDS_Shape const & shape, sdkShapeHistory & history)
    {
        if (shape.ShapeType() == TopAbs_COMPOUND || shape.ShapeType() > TopAbs_FACE) {
            return std::nullopt;
        }
        auto const edges = zero_edges(shape);
        if (edges.IsEmpty()) {
            return std::nullopt;
        }
        Handle(ShapeBuild_ReShape) const context = new ShapeBuild_ReShape;
        for (TopTools_MapOfShape::Iterator edge(edges); edge.More(); edge.Next()) {
            auto const forward = TopoDS::Edge(edge.Value().Oriented(TopAbs_FORWARD));
            join_ends(forward, *context);
            context->Remove(forward);
        }
        auto const result = context->Apply(shape);
        if (!sdk_no_worse(shape, result)) {
            return std::nullopt;
        }
        m_count += edges.Extent();
        sdk_remember(shape, context, history);
        return result;
    }

private:
    std::int64_t m_count = 0;
};

} // namespace

std::int64_t sdk_drop_zero_edges(sdkDocument & document)
{
    Drop drop;
    sdk_edit_parts(document, document.parts(),
                   [&](TDF_Label const &, TopoDS_Shape const & shape, sdkShapeHistory & history) {
                       return drop(shape, history);
                   });
    return drop.count();
}
