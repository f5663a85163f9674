#pragma once

#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>

// How far an edge of a face lies from the surface of the face, in millimetres: the largest distance over
// points of its curve in space. Integration over a face follows the curves on its surface and does not notice
// an edge that lies elsewhere. 0 for an edge without a curve in space and for a face without a surface.
double sdk_edge_deviation(TopoDS_Face const & face, TopoDS_Edge const & edge);

// The largest over all edges of all faces of a shape.
double sdk_edge_deviation(TopoDS_Shape const & shape);

// The larger of two deviations; what is no number is larger than any: an edge that lies nowhere lies off its
// surface.
double sdk_larger_deviation(double a, double b);
