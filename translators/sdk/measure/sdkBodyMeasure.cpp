#include "sdk/measure/sdkBodyMeasure.h"

#include "sdk/measure/sdkEdgeDeviation.h"
#include "sdk/measure/sdkFaceIntegrals.h"
#include "sdk/measure/sdkGaussRule.h"
#include "sdk/measure/sdkMeshMeasure.h"
#include "sdk/measure/sdkOuterExtent.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>

#include <NCollection_DataMap.hxx>

#include <cmath>

namespace {

gp_Mat outer(gp_XYZ const & a)
{
    return {a.X() * a.X(), a.X() * a.Y(), a.X() * a.Z(), a.Y() * a.X(), a.Y() * a.Y(),
            a.Y() * a.Z(), a.Z() * a.X(), a.Z() * a.Y(), a.Z() * a.Z()};
}

bool has_surface(TopoDS_Face const & face)
{
    TopLoc_Location location;
    return !BRep_Tool::Surface(face, location).IsNull();
}

int kind_count(TopoDS_Shape const & shape, TopAbs_ShapeEnum kind)
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, kind, all);
    return all.Extent();
}

void add_sums(sdkFaceIntegrals const & sums, gp_Pnt const & reference, bool solid, sdkBodyMeasure & measure)
{
    measure.area = sums.area;
    measure.volume = sums.volume;
    auto const centre = sums.area > 0 ? sums.area_moment / sums.area : gp_XYZ();
    measure.centroid = reference.XYZ() + centre;
    measure.vector_area = sums.vector_area;
    measure.outflow = 3 * sums.volume - centre.Dot(sums.vector_area);
    // Steiner takes the moments from the reference to the centroid.
    measure.moments = sums.second_moment - outer(centre).Multiplied(sums.area);
    if (solid && std::abs(sums.volume) > 0) {
        measure.centroid = reference.XYZ() + sums.volume_moment / sums.volume;
    }
}

gp_Pnt reference_of(TopoDS_Shape const & body)
{
    if (TopExp_Explorer const vertex(body, TopAbs_VERTEX); vertex.More()) {
        return BRep_Tool::Pnt(TopoDS::Vertex(vertex.Current()));
    }
    return gp::Origin();
}

// Which edges are used by how many faces, and in which direction.
void count_edges(TopoDS_Shape const & body, sdkBodyMeasure & measure)
{
    struct Uses {
        int forward = 0;
        int reversed = 0;
    };
    NCollection_DataMap<TopoDS_Shape, Uses, TopTools_ShapeMapHasher> uses;
    for (TopExp_Explorer face(body, TopAbs_FACE); face.More(); face.Next()) {
        for (TopExp_Explorer edge(face.Current(), TopAbs_EDGE); edge.More(); edge.Next()) {
            auto const & one = TopoDS::Edge(edge.Current());
            if (!BRep_Tool::Degenerated(one)) {
                auto * use = uses.ChangeSeek(one);
                use = use ? use : uses.Bound(one, Uses());
                (one.Orientation() == TopAbs_REVERSED ? use->reversed : use->forward) +=
                    one.Orientation() <= TopAbs_REVERSED ? 1 : 0;
            }
        }
    }
    for (decltype(uses)::Iterator use(uses); use.More(); use.Next()) {
        int const forward = use.Value().forward;
        int const reversed = use.Value().reversed;
        measure.free_edges += forward + reversed == 1 ? 1 : 0;
        measure.turned_edges += forward + reversed == 2 && forward != reversed ? 1 : 0;
    }
    measure.edges = uses.Extent();
}

void extend(TopoDS_Shape const & body, Bnd_Box & extent)
{
    constexpr int samples = 12;
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(body, TopAbs_EDGE, edges);
    for (int number = 1; number <= edges.Extent(); ++number) {
        auto const & edge = TopoDS::Edge(edges(number));
        TopLoc_Location location;
        double first = 0;
        double last = 0;
        if (BRep_Tool::Curve(edge, location, first, last).IsNull() || std::isinf(first) || std::isinf(last) ||
            last - first > 1.0e50) {
            continue;
        }
        BRepAdaptor_Curve const curve(edge);
        int const count = curve.GetType() == GeomAbs_Line ? 1 : samples;
        for (int at = 0; at <= count; ++at) {
            extent.Add(curve.Value(first + (last - first) * at / count));
        }
    }
}

// Between the places where the curve is not smooth, and in pieces, of which an arc wants some.
template <class Add>
void integrate(BRepAdaptor_Curve const & curve, Add const & add)
{
    constexpr int points = 10;
    int const pieces = curve.GetType() == GeomAbs_Line ? 1 : 8;
    TColStd_Array1OfReal knots(1, curve.NbIntervals(GeomAbs_CN) + 1);
    curve.Intervals(knots, GeomAbs_CN);
    for (int at = knots.Lower(); at < knots.Upper(); ++at) {
        double const half = (knots(at + 1) - knots(at)) / pieces / 2;
        for (int piece = 0; piece < pieces; ++piece) {
            double const middle = knots(at) + (2 * piece + 1) * half;
            for (auto const & [place, weight] : sdk_gauss_rule(points)) {
                gp_Pnt point;
                gp_Vec tangent;
                curve.D1(middle + half * place, point, tangent);
                add(point, weight * half * tangent.Magnitude());
            }
        }
    }
}

sdkBodyMeasure measure_curve(TopoDS_Shape const & body)
{
    sdkBodyMeasure measure;
    measure.edges = 1;
    auto const & edge = TopoDS::Edge(body);
    TopLoc_Location location;
    double first = 0;
    double last = 0;
    auto const reference = reference_of(body);
    measure.centroid = reference;
    if (BRep_Tool::Curve(edge, location, first, last).IsNull() || Precision::IsInfinite(first) ||
        Precision::IsInfinite(last)) {
        return measure;
    }
    gp_XYZ moment;
    gp_Mat second{0, 0, 0, 0, 0, 0, 0, 0, 0};
    integrate(BRepAdaptor_Curve(edge), [&](gp_Pnt const & point, double length) {
        auto const arm = point.XYZ() - reference.XYZ();
        measure.length += length;
        moment += arm * length;
        second += outer(arm).Multiplied(length);
    });
    if (measure.length > 0) {
        auto const centre = moment / measure.length;
        measure.centroid = reference.XYZ() + centre;
        measure.moments = second - outer(centre).Multiplied(measure.length);
    }
    extend(body, measure.extent);
    return measure;
}

sdkBodyMeasure measure_point(TopoDS_Shape const & body)
{
    sdkBodyMeasure measure;
    measure.centroid = BRep_Tool::Pnt(TopoDS::Vertex(body));
    measure.extent.Add(measure.centroid);
    return measure;
}

} // namespace

sdkBodyMeasuring::sdkBodyMeasuring(TopoDS_Shape const & body, sdkMeasureLevel level)
    : m_body(body), m_level(level), m_reference(reference_of(body))
{
    for (TopExp_Explorer face(body, TopAbs_FACE); face.More(); face.Next()) {
        auto const & one = TopoDS::Face(face.Current());
        m_faces.push_back({.face = one, .mesh = !has_surface(one), .triangles = {}, .integrals = {}});
    }
}

void sdkBodyMeasuring::measure_face(int face)
{
    auto & one = m_faces[static_cast<std::size_t>(face)];
    if (one.mesh) {
        one.triangles = sdk_measure_mesh(one.face, m_reference);
        one.integrals = one.triangles.integrals;
    } else if (m_level == sdkMeasureLevel::full) {
        one.integrals = sdk_face_integrals(one.face, m_reference);
        one.edge_deviation = sdk_edge_deviation(one.face);
    }
}

sdkBodyMeasure sdkBodyMeasuring::finish()
{
    if (m_body.ShapeType() == TopAbs_VERTEX) {
        return measure_point(m_body);
    }
    if (m_body.ShapeType() == TopAbs_EDGE) {
        return measure_curve(m_body);
    }
    sdkBodyMeasure measure;
    measure.shells = kind_count(m_body, TopAbs_SHELL);
    count_edges(m_body, measure);
    sdkFaceIntegrals sums;
    for (auto const & one : m_faces) {
        measure.triangles += one.triangles.triangles;
        measure.extent.Add(one.triangles.extent);
        auto const & integrals = one.integrals;
        auto const centre = integrals.area > 0 ? integrals.area_moment / integrals.area : gp_XYZ();
        measure.faces.push_back({integrals.area, m_reference.XYZ() + centre});
        sums += integrals;
        measure.edge_deviation = sdk_larger_deviation(measure.edge_deviation, one.edge_deviation);
    }
    if (m_level == sdkMeasureLevel::full) {
        if (sdk_triangles_only(m_body)) {
            measure.unmatched_edges = sdk_unmatched_edges(m_body);
        }
        add_sums(sums, m_reference, m_body.ShapeType() == TopAbs_SOLID, measure);
        extend(m_body, measure.extent);
    }
    return measure;
}

sdkBodyMeasure sdk_measure_body(TopoDS_Shape const & body, sdkMeasureLevel level)
{
    sdkBodyMeasuring measuring(body, level);
    for (int face = 0; face < measuring.faces(); ++face) {
        measuring.measure_face(face);
    }
    return measuring.finish();
}

sdkBodyMeasure sdkBodyMeasure::reversed() const
{
    sdkBodyMeasure result = *this;
    result.volume = -volume;
    result.vector_area.Reverse();
    result.outflow = -outflow;
    return result;
}

bool sdkBodyMeasure::turned(sdkBodyMeasure const & other) const
{
    // Either may be nothing: the first of what is closed, the second of what is plane.
    constexpr double enough = 1.0e-6;
    auto const alike = vector_area.Dot(other.vector_area) * area + outflow * other.outflow;
    return alike < -enough * area * area * area;
}

sdkBodyMeasure sdkBodyMeasure::placed(gp_Trsf const & place) const
{
    sdkBodyMeasure result = *this;
    double const scale = std::abs(place.ScaleFactor());
    result.volume *= scale * scale * scale;
    result.area *= scale * scale;
    result.length *= scale;
    result.edge_deviation *= scale;
    result.centroid.Transform(place);
    auto const turn = place.HVectorialPart();
    result.moments = turn.Multiplied(moments).Multiplied(turn.Transposed());
    bool const line = area == 0 && length > 0;
    result.moments.Multiply(scale * scale * scale * (line ? 1 : scale));
    // A mirrored body has its matter on the side where the mirror shows it.
    result.vector_area.Multiply(turn);
    result.vector_area *= place.IsNegative() ? -scale * scale : scale * scale;
    result.outflow *= scale * scale * scale;
    result.extent = extent.IsVoid() ? extent : extent.Transformed(place);
    for (auto & face : result.faces) {
        face.area *= scale * scale;
        face.centroid.Transform(place);
    }
    return result;
}
