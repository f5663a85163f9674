#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkTriangleGaps.h"

#include <BRepTools.hxx>
#include <Message_ProgressScope.hxx>
#include <ShapeFix_Shape.hxx>
#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>

namespace {

// A repair may not move anything further than this; in millimetres.
constexpr double most_moved = 0.01;

void tessellate_again(TopoDS_Shape const & shape, sdkTessellationTolerances const & tolerances)
{
    BRepTools::Clean(shape);
    sdk_tessellate(shape, tolerances);
}

// A solid that has lost its closed shell has no gaps either.
bool closes(TopoDS_Shape const & shape, sdkTriangleGaps const & before)
{
    auto const now = sdk_triangle_gaps(shape);
    return now.unmatched_edges == 0 && now.closed_solids >= before.closed_solids;
}

// Null when the repair itself fails, as it does on a face whose border crosses itself.
TopoDS_Shape repaired(TopoDS_Shape const & shape)
{
    try {
        Handle(ShapeFix_Shape) const fix = new ShapeFix_Shape(shape);
        fix->SetMaxTolerance(most_moved);
        fix->Perform();
        return fix->Shape();
    } catch (Standard_OutOfMemory const &) {
        throw;
    } catch (Standard_Failure const &) {
        return {};
    }
}

// Returns what is left open.
std::int64_t close(sdkDocument & document, TDF_Label const & part,
                   sdkTessellationTolerances const & tolerances)
{
    auto const shape = XCAFDoc_ShapeTool::GetShape(part);
    auto const before = sdk_triangle_gaps(shape);
    if (before.unmatched_edges == 0) {
        return 0;
    }
    // Lines of a face that lie close to each other cross when they are divided coarsely.
    for (double const finer : {2.0, 4.0}) {
        tessellate_again(shape, {tolerances.linear / finer, tolerances.angular / finer});
        if (closes(shape, before)) {
            return 0;
        }
    }
    tessellate_again(shape, tolerances);
    auto const mended = repaired(shape);
    if (mended.IsNull()) {
        return before.unmatched_edges;
    }
    tessellate_again(mended, tolerances);
    if (!closes(mended, before)) {
        return before.unmatched_edges;
    }
    TDF_LabelSequence parts;
    parts.Append(part);
    sdk_edit_parts(document, parts,
                   [&](TDF_Label const &, TopoDS_Shape const &, sdkShapeHistory &) { return mended; });
    return 0;
}

} // namespace

std::vector<sdkOpenPart> sdk_close_triangles(sdkDocument & document,
                                             sdkTessellationTolerances const & tolerances,
                                             Message_ProgressRange const & range)
{
    std::vector<sdkOpenPart> open;
    auto const parts = document.parts();
    Message_ProgressScope scope(range, nullptr, parts.Length());
    for (auto const & part : parts) {
        if (scope.UserBreak()) {
            break;
        }
        auto const name = sdkDocument::name(part);
        if (auto const left = close(document, part, tolerances); left > 0) {
            open.push_back({name, left});
        }
        scope.Next();
    }
    return open;
}
