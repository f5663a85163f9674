#include "sdk/measure/sdkShapeComparison.h"

#include "sdk/measure/sdkBodyExtent.h"
#include "sdk/measure/sdkFaceGap.h"
#include "sdk/measure/sdkFacePairs.h"

#include <BRepBndLib.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

std::vector<TopoDS_Face> faces_of(TopoDS_Shape const & shape)
{
    std::vector<TopoDS_Face> faces;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        faces.push_back(TopoDS::Face(face.Current()));
    }
    return faces;
}

// How exactly the source says where its edges are.
double edge_tolerance(TopoDS_Face const & face)
{
    double largest = 0;
    for (TopExp_Explorer edge(face, TopAbs_EDGE); edge.More(); edge.Next()) {
        largest = std::max(largest, BRep_Tool::Tolerance(TopoDS::Edge(edge.Current())));
    }
    return largest;
}

double perimeter(TopoDS_Face const & face)
{
    double length = 0;
    for (TopExp_Explorer edge(face, TopAbs_EDGE); edge.More(); edge.Next()) {
        length += sdk_measure_body(edge.Current(), sdkMeasureLevel::full).length;
    }
    return length;
}

double diagonal(TopoDS_Face const & face)
{
    Bnd_Box box;
    BRepBndLib::Add(face, box, Standard_False);
    return box.IsVoid() || box.IsOpen() ? 0 : std::sqrt(box.SquareExtent());
}

bool same_box(Bnd_Box const & a, Bnd_Box const & b, double allowed)
{
    return !a.IsVoid() && !b.IsVoid() && a.CornerMin().Distance(b.CornerMin()) <= allowed &&
           a.CornerMax().Distance(b.CornerMax()) <= allowed;
}

class Comparison {
public:
    Comparison(sdkBody const & source, sdkBody const & output, sdkTolerances const & tolerances,
               std::vector<sdkFinding> & findings)
        : m_source(source), m_output(output), m_tolerances(tolerances), m_findings(findings),
          m_size(std::max(source.size(), output.size())), m_faces(faces_of(source.shape)),
          m_faces_there(faces_of(output.shape)),
          m_allowed(std::max(tolerances.absolute, 1.01 * source.measure.edge_deviation))
    {
    }

    // False when the measures are not those of the shapes.
    bool measured() const
    {
        return m_faces.size() == m_source.measure.faces.size() &&
               m_faces_there.size() == m_output.measure.faces.size();
    }

    // Returns false when a difference was found.
    bool compare_faces()
    {
        auto const reach = 2 * m_tolerances.absolute + 10 * m_tolerances.relative * m_size;
        m_pairs = sdk_pair_faces(m_source.measure, m_output.measure, reach);
        for (auto const & [from, to] : m_pairs.pairs) {
            auto const & a = m_source.measure.faces[from];
            auto const & b = m_output.measure.faces[to];
            if (!near(a, b) && !within_tolerance(from, to)) {
                tell_face(a, b);
                return false;
            }
        }
        return true;
    }

    bool compare_surfaces()
    {
        for (auto const & [from, to] : m_pairs.pairs) {
            auto const & a = m_faces[from];
            auto const & b = m_faces_there[to];
            bool const elementary = sdk_is_elementary(a);
            if ((elementary && sdk_is_elementary(b)) || sdk_same_spline(a, b, m_tolerances.absolute)) {
                continue;
            }
            double const allowed = allowed_at(a);
            if (!told(elementary ? sdk_face_gap(b, {a}, allowed) : sdk_face_gap(a, {b}, allowed), allowed)) {
                return false;
            }
        }
        return compare_rest();
    }

    bool compare_extents()
    {
        double const allowed = m_allowed + m_tolerances.relative * m_size;
        // Where curves begin elsewhere or places are turned, the boxes of the measures are not the smallest.
        if (same_box(m_source.measure.extent, m_output.measure.extent, allowed)) {
            return true;
        }
        auto const box = sdk_tight_extent(m_source.shape);
        auto const there = sdk_tight_extent(m_output.shape);
        auto const * farther = box.farthest_beyond(there, allowed);
        auto const * shape = &m_output.shape;
        if (!farther) {
            farther = there.farthest_beyond(box, allowed);
            shape = &m_source.shape;
        }
        // A point that lies on the other shape all the same was only missed there.
        if (!farther || sdk_distance(*farther, *shape) <= allowed) {
            return true;
        }
        auto const in = box.text();
        auto const out = there.text();
        m_findings.push_back({sdkWeight::difference, "extent", m_source.part, sdk_point_text(*farther),
                              std::nullopt, std::nullopt,
                              sdkText("measure::%s has the box %s in the source and %s in the output",
                                      m_source.title(), in, out)});
        return false;
    }

private:
    double allowed_at(TopoDS_Face const & face) const { return std::max(m_allowed, edge_tolerance(face)); }

    // Whatever the shape of the face.
    bool near(sdkFaceMeasure const & a, sdkFaceMeasure const & b) const
    {
        double const side = std::sqrt(std::max(a.area, b.area));
        return std::abs(a.area - b.area) <= m_tolerances.relative * a.area + m_allowed * side &&
               a.centroid.Distance(b.centroid) <= m_allowed + 10 * m_tolerances.relative * side;
    }

    // With edges that lie as far off as the source allows.
    bool within_tolerance(std::size_t from, std::size_t to)
    {
        auto const & a = m_source.measure.faces[from];
        auto const & b = m_output.measure.faces[to];
        auto const & face = m_faces[from];
        double const allowed = allowed_at(face);
        return std::abs(a.area - b.area) <= m_tolerances.relative * a.area + allowed * perimeter(face) &&
               a.centroid.Distance(b.centroid) <= allowed + 10 * m_tolerances.relative * diagonal(face);
    }

    // Divided and joined faces lie on the surfaces that they come from.
    bool compare_rest()
    {
        std::vector<TopoDS_Face> others;
        for (auto const number : m_pairs.output) {
            others.push_back(m_faces_there[number]);
        }
        for (auto const number : m_pairs.source) {
            auto const & face = m_faces[number];
            double const allowed = allowed_at(face);
            // One that is only an edge in width may be left out.
            if (m_source.measure.faces[number].area <= allowed * perimeter(face)) {
                continue;
            }
            if (others.empty()) {
                tell_face(m_source.measure.faces[number], {0, m_source.measure.faces[number].centroid});
                return false;
            }
            if (!told(sdk_face_gap(face, near_to(face, others, allowed), allowed), allowed)) {
                return false;
            }
        }
        return true;
    }

    std::vector<TopoDS_Face> near_to(TopoDS_Face const & face, std::vector<TopoDS_Face> const & others,
                                     double allowed)
    {
        if (m_boxes.empty()) {
            for (auto const & other : others) {
                BRepBndLib::Add(other, m_boxes.emplace_back(), Standard_False);
            }
        }
        Bnd_Box box;
        BRepBndLib::Add(face, box, Standard_False);
        box.Enlarge(allowed);
        std::vector<TopoDS_Face> near;
        for (std::size_t at = 0; at < others.size(); ++at) {
            if (!box.IsOut(m_boxes[at])) {
                near.push_back(others[at]);
            }
        }
        return near;
    }

    // False when the gap was too large, and told.
    bool told(sdkGap const & gap, double allowed)
    {
        if (gap.distance <= allowed) {
            return true;
        }
        auto const place = sdk_point_text(gap.point);
        m_findings.push_back(
            {sdkWeight::difference, "surface", m_source.part, place, 0, gap.distance,
             std::isfinite(gap.distance)
                 ? sdkText("measure::A surface of %s lies %.6g mm off its place in the source, at %s",
                           m_source.title(), gap.distance, place)
                 : sdkText("measure::A surface of %s at %s is not in the output", m_source.title(), place)});
        return false;
    }

    void tell_face(sdkFaceMeasure const & a, sdkFaceMeasure const & b)
    {
        auto const place = sdk_point_text(a.centroid);
        double const moved = a.centroid.Distance(b.centroid);
        m_findings.push_back(
            {sdkWeight::difference, "face", m_source.part, place, a.area, b.area,
             sdkText("measure::The face of %s at %s has an area of %.10g mm2 in the source and of %.10g mm2 "
                     "in the output; its centroid lies %.6g mm away",
                     m_source.title(), place, a.area, b.area, moved)});
    }

    sdkBody const & m_source;
    sdkBody const & m_output;
    sdkTolerances const & m_tolerances;
    std::vector<sdkFinding> & m_findings;
    double m_size;
    std::vector<TopoDS_Face> m_faces; // in the order of the measures
    std::vector<TopoDS_Face> m_faces_there;
    double m_allowed;
    sdkFacePairs m_pairs;
    std::vector<Bnd_Box> m_boxes; // of the faces of the output that have no counterpart
};

} // namespace

void sdkShapeComparison::compare(sdkBody const & source, sdkBody const & output,
                                 std::vector<sdkFinding> & findings)
{
    if (source.shape.IsNull() || output.shape.IsNull()) {
        return; // counted or made up, not measured
    }
    Comparison comparison(source, output, m_tolerances, findings);
    if (!comparison.measured() || !comparison.compare_faces()) {
        return;
    }
    if (!seen(source.shape, output.shape)) {
        comparison.compare_surfaces() && comparison.compare_extents();
    }
}

bool sdkShapeComparison::seen(TopoDS_Shape const & source, TopoDS_Shape const & output)
{
    auto const between = source.Location().Transformation().Inverted() * output.Location().Transformation();
    auto const [found, added] =
        m_seen.try_emplace(std::pair(source.TShape().get(), output.TShape().get()), between);
    if (added) {
        return false;
    }
    auto const & before = found->second;
    double turned = 0;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            turned = std::max(turned, std::abs(before.Value(row, column) - between.Value(row, column)));
        }
    }
    double const moved = (before.TranslationPart() - between.TranslationPart()).Modulus();
    return turned <= 1.0e-9 && moved <= m_tolerances.absolute / 10;
}
