#pragma once

#include <TopoDS_Edge.hxx>

#include <optional>

// The parameters between which an edge runs on its curve in space.
struct sdkEdgeRange {
    double first = 0;
    double last = 0;

    double at(double part) const { return first + part * (last - first); } // 0 to 1
    bool finite() const;
};

// Nothing for an edge that is a pole of its surface, or that has curves on surfaces only.
std::optional<sdkEdgeRange> sdk_edge_range(TopoDS_Edge const & edge);

// The same, and nothing for an edge that has no end.
std::optional<sdkEdgeRange> sdk_bounded_range(TopoDS_Edge const & edge);
