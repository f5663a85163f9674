#include "sdk/geometry/sdkEdgeRange.h"

#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <TopLoc_Location.hxx>

bool sdkEdgeRange::finite() const
{
    return !Precision::IsInfinite(first) && !Precision::IsInfinite(last);
}

std::optional<sdkEdgeRange> sdk_edge_range(TopoDS_Edge const & edge)
{
    TopLoc_Location location;
    sdkEdgeRange range;
    if (BRep_Tool::Degenerated(edge) || BRep_Tool::Curve(edge, location, range.first, range.last).IsNull()) {
        return std::nullopt;
    }
    return range;
}

std::optional<sdkEdgeRange> sdk_bounded_range(TopoDS_Edge const & edge)
{
    auto const range = sdk_edge_range(edge);
    return range && range->finite() ? range : std::nullopt;
}
