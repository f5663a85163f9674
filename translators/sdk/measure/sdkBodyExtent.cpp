#include "sdk/measure/sdkBodyExtent.h"

#include "sdk/measure/sdkEdgeExtent.h"
#include "sdk/measure/sdkFaceExtent.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <Standard_Failure.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>

#include <limits>

sdkTightExtent sdk_tight_extent(TopoDS_Shape const & body)
{
    sdkTightExtent extent;
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(body, TopAbs_EDGE, edges);
    // From what is quick to what takes long: most of what comes later lies within.
    for (int number = 1; number <= edges.Extent(); ++number) {
        sdk_add_ends(TopoDS::Edge(edges(number)), extent);
    }
    for (int number = 1; number <= edges.Extent(); ++number) {
        sdk_add_edge(TopoDS::Edge(edges(number)), extent);
    }
    for (TopExp_Explorer face(body, TopAbs_FACE); face.More(); face.Next()) {
        sdk_add_face(TopoDS::Face(face.Current()), extent);
    }
    return extent;
}

double sdk_distance(gp_Pnt const & point, TopoDS_Shape const & shape)
{
    try {
        BRepExtrema_DistShapeShape const distance(BRepBuilderAPI_MakeVertex(point).Vertex(), shape);
        return distance.IsDone() && distance.NbSolution() > 0 ? distance.Value()
                                                              : std::numeric_limits<double>::infinity();
    } catch (Standard_Failure const &) {
        return std::numeric_limits<double>::infinity();
    }
}
