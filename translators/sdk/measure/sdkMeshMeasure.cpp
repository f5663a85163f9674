#include "sdk/measure/sdkMeshMeasure.h"

#include "sdk/geometry/sdkVertexMerger.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>
#include <vector>

namespace {

// The triangles of a face at its place, looking outward as the face does.
class Triangles {
public:
    explicit Triangles(TopoDS_Face const & face)
    {
        TopLoc_Location location;
        m_mesh = BRep_Tool::Triangulation(face, location);
        m_place = location.Transformation();
        m_turned = (face.Orientation() == TopAbs_REVERSED) != m_place.IsNegative();
    }

    int size() const { return m_mesh.IsNull() ? 0 : m_mesh->NbTriangles(); }

    std::array<gp_XYZ, 3> corners(int number) const
    {
        std::array<int, 3> nodes{};
        m_mesh->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
        if (m_turned) {
            std::swap(nodes[1], nodes[2]);
        }
        std::array<gp_XYZ, 3> points;
        for (std::size_t at = 0; at < 3; ++at) {
            points[at] = m_mesh->Node(nodes[at]).Transformed(m_place).XYZ();
        }
        return points;
    }

private:
    Handle(Poly_Triangulation) m_mesh;
    gp_Trsf m_place;
    bool m_turned = false;
};

} // namespace

sdkMeshMeasure sdk_measure_mesh(TopoDS_Face const & face, gp_Pnt const & reference)
{
    sdkMeshMeasure measure;
    auto & integrals = measure.integrals;
    Triangles const triangles(face);
    measure.triangles = triangles.size();
    for (int number = 1; number <= triangles.size(); ++number) {
        auto corners = triangles.corners(number);
        for (auto & corner : corners) {
            measure.extent.Add(gp_Pnt(corner));
            corner -= reference.XYZ();
        }
        auto const & [a, b, c] = corners;
        auto const vector_area = (b - a).Crossed(c - a) / 2;
        double const area = vector_area.Modulus();
        double const volume = a.Dot(b.Crossed(c)) / 6;
        auto const sum = a + b + c;
        integrals.area += area;
        integrals.vector_area += vector_area;
        integrals.area_moment += sum * (area / 3);
        integrals.volume += volume;
        integrals.volume_moment += sum * (volume / 4);
        for (int x = 1; x <= 3; ++x) {
            for (int y = 1; y <= 3; ++y) {
                // The second moment of a triangle by its corners and their sum.
                integrals.second_moment.ChangeValue(x, y) +=
                    area / 12 *
                    (sum.Coord(x) * sum.Coord(y) + a.Coord(x) * a.Coord(y) + b.Coord(x) * b.Coord(y) +
                     c.Coord(x) * c.Coord(y));
            }
        }
    }
    return measure;
}

std::int64_t sdk_unmatched_edges(TopoDS_Shape const & shape)
{
    sdkVertexMerger points(0, 0);
    std::vector<std::pair<std::pair<int, int>, int>> sides; // ends in rising order, direction
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        Triangles const triangles(TopoDS::Face(face.Current()));
        for (int number = 1; number <= triangles.size(); ++number) {
            std::array<int, 3> ends{};
            auto const corners = triangles.corners(number);
            std::transform(corners.begin(), corners.end(), ends.begin(),
                           [&](gp_XYZ const & corner) { return points.add(corner); });
            for (std::size_t at = 0; at < 3; ++at) {
                int const from = ends[at];
                int const to = ends[(at + 1) % 3];
                if (from != to) {
                    sides.push_back({{std::min(from, to), std::max(from, to)}, from < to ? 1 : -1});
                }
            }
        }
    }
    std::sort(sides.begin(), sides.end());
    std::int64_t unmatched = 0;
    for (std::size_t at = 0; at < sides.size();) {
        int balance = 0;
        auto const edge = sides[at].first;
        for (; at < sides.size() && sides[at].first == edge; ++at) {
            balance += sides[at].second;
        }
        unmatched += std::abs(balance);
    }
    return unmatched;
}
