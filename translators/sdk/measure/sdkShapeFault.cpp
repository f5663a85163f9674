#include "sdk/measure/sdkShapeFault.h"

#include <BRepBndLib.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepCheck_ListOfStatus.hxx>
#include <BRepCheck_Result.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>

#include <cstdio>
#include <string_view>

namespace {

std::string_view words_for(BRepCheck_Status status)
{
    switch (status) {
    case BRepCheck_InvalidPointOnCurve:
    case BRepCheck_InvalidPointOnCurveOnSurface:
    case BRepCheck_InvalidPointOnSurface:
        return "term::a vertex lies off its curve or surface";
    case BRepCheck_No3DCurve:
    case BRepCheck_Multiple3DCurve:
    case BRepCheck_Invalid3DCurve:
    case BRepCheck_InvalidRange:
    case BRepCheck_InvalidDegeneratedFlag:
        return "term::an edge has no usable curve";
    case BRepCheck_NoCurveOnSurface:
    case BRepCheck_InvalidCurveOnSurface:
    case BRepCheck_InvalidCurveOnClosedSurface:
    case BRepCheck_InvalidSameRangeFlag:
    case BRepCheck_InvalidSameParameterFlag:
        return "term::an edge lies off its face";
    case BRepCheck_FreeEdge:
        return "term::an edge bounds one face only";
    case BRepCheck_InvalidMultiConnexity:
        return "term::an edge bounds more than two faces";
    case BRepCheck_EmptyWire:
    case BRepCheck_RedundantEdge:
    case BRepCheck_InvalidWire:
        return "term::a face has a boundary that is empty or runs twice";
    case BRepCheck_SelfIntersectingWire:
        return "term::the boundary of a face crosses itself";
    case BRepCheck_NoSurface:
        return "term::a face has no surface";
    case BRepCheck_RedundantWire:
    case BRepCheck_IntersectingWires:
        return "term::boundaries of a face cross or coincide";
    case BRepCheck_InvalidImbricationOfWires:
        return "term::the boundaries of a face do not lie within each other as they should";
    case BRepCheck_EmptyShell:
    case BRepCheck_RedundantFace:
        return "term::a shell has no faces, or one twice";
    case BRepCheck_InvalidImbricationOfShells:
    case BRepCheck_EnclosedRegion:
        return "term::the shells of a solid do not lie within each other as they should";
    case BRepCheck_UnorientableShape:
    case BRepCheck_BadOrientation:
    case BRepCheck_BadOrientationOfSubshape:
        return "term::a face or an edge is turned the wrong way";
    case BRepCheck_NotClosed:
        return "term::a boundary is not closed";
    case BRepCheck_NotConnected:
        return "term::the parts of a shell are not connected";
    case BRepCheck_InvalidToleranceValue:
        return "term::a tolerance has no usable value";
    default:
        return "term::a part of the shape cannot be checked";
    }
}

// Of a list; no error when there is none.
BRepCheck_Status first_error(BRepCheck_ListOfStatus const & list)
{
    for (auto const status : list) {
        if (status != BRepCheck_NoError) {
            return status;
        }
    }
    return BRepCheck_NoError;
}

BRepCheck_Status error_of(BRepCheck_Analyzer const & analyzer, TopoDS_Shape const & shape)
{
    auto const & result = analyzer.Result(shape);
    if (result.IsNull()) {
        return BRepCheck_NoError;
    }
    auto error = first_error(result->Status());
    for (result->InitContextIterator(); error == BRepCheck_NoError && result->MoreShapeInContext();
         result->NextShapeInContext()) {
        error = first_error(result->StatusOnShape());
    }
    return error;
}

gp_Pnt point_of(TopoDS_Shape const & shape)
{
    if (TopExp_Explorer const vertex(shape, TopAbs_VERTEX); vertex.More()) {
        return BRep_Tool::Pnt(TopoDS::Vertex(vertex.Current()));
    }
    Bnd_Box box;
    BRepBndLib::Add(shape, box, Standard_False);
    return box.IsVoid() ? gp_Pnt() : gp_Pnt((box.CornerMin().XYZ() + box.CornerMax().XYZ()) / 2);
}

} // namespace

std::string sdkShapeFault::place() const
{
    char text[96];
    // A sum with 0 turns a negative zero into a positive one.
    std::snprintf(text, sizeof text, "(%.6g, %.6g, %.6g)", point.X() + 0.0, point.Y() + 0.0, point.Z() + 0.0);
    return text;
}

std::optional<sdkShapeFault> sdk_shape_fault(TopoDS_Shape const & shape)
{
    try {
        BRepCheck_Analyzer const analyzer(shape);
        if (analyzer.IsValid()) {
            return std::nullopt;
        }
        // From the smallest up: a bad edge makes its faces bad.
        for (auto const kind :
             {TopAbs_VERTEX, TopAbs_EDGE, TopAbs_WIRE, TopAbs_FACE, TopAbs_SHELL, TopAbs_SOLID}) {
            TopTools_IndexedMapOfShape all;
            TopExp::MapShapes(shape, kind, all);
            for (int at = 1; at <= all.Extent(); ++at) {
                auto const & one = all(at);
                if (auto const error = error_of(analyzer, one); error != BRepCheck_NoError) {
                    return sdkShapeFault{std::string(words_for(error)), point_of(one)};
                }
            }
        }
        return sdkShapeFault{std::string(words_for(BRepCheck_CheckFail)), point_of(shape)};
    } catch (Standard_OutOfMemory const &) {
        throw;
    } catch (Standard_Failure const &) {
        return std::nullopt;
    }
}
