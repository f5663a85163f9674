#include "sdk/geometry/sdkFacetMesh.h"

#include "sdk/geometry/sdkVertexMerger.h"

#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <utility>

namespace {

constexpr int none = -1;

gp_XYZ area_vector_of(std::vector<gp_XYZ> const & points, sdkFacetMesh::Triangle const & triangle)
{
    auto const & origin = points[static_cast<std::size_t>(triangle[0])];
    return (points[static_cast<std::size_t>(triangle[1])] - origin)
        .Crossed(points[static_cast<std::size_t>(triangle[2])] - origin);
}

bool has_side(sdkFacetMesh::Triangle const & triangle, int from, int to)
{
    return (triangle[0] == from && triangle[1] == to) || (triangle[1] == from && triangle[2] == to) ||
           (triangle[2] == from && triangle[0] == to);
}

} // namespace

std::uint64_t sdk_facet_edge(int one, int other)
{
    auto const [low, high] = std::minmax(one, other);
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(low)) << 32U |
           static_cast<std::uint32_t>(high);
}

sdkFacetMesh::sdkFacetMesh(TopTools_ListOfShape const & faces, double tolerance)
{
    collect(faces, tolerance);
    auto const sides = sorted_sides();
    find_neighbours(sides);
    find_sets();
    find_borders(sides);
}

gp_XYZ sdkFacetMesh::area_vector(int triangle) const
{
    return area_vector_of(m_points, m_triangles[static_cast<std::size_t>(triangle)]);
}

void sdkFacetMesh::collect(TopTools_ListOfShape const & faces, double tolerance)
{
    sdkVertexMerger merger(tolerance, 0);
    for (auto const & face : faces) {
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(TopoDS::Face(face), location);
        if (mesh.IsNull()) {
            continue;
        }
        std::vector<int> numbers;
        numbers.reserve(static_cast<std::size_t>(mesh->NbNodes()));
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            numbers.push_back(merger.add(mesh->Node(node).Transformed(location.Transformation()).XYZ()));
        }
        m_triangles.reserve(m_triangles.size() + static_cast<std::size_t>(mesh->NbTriangles()));
        for (int number = 1; number <= mesh->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            Triangle triangle{numbers[static_cast<std::size_t>(a - 1)],
                              numbers[static_cast<std::size_t>(b - 1)],
                              numbers[static_cast<std::size_t>(c - 1)]};
            if (face.Orientation() == TopAbs_REVERSED) {
                std::swap(triangle[1], triangle[2]);
            }
            bool const flat = triangle[0] == triangle[1] || triangle[1] == triangle[2] ||
                              triangle[2] == triangle[0] ||
                              area_vector_of(merger.points(), triangle).Modulus() <= gp::Resolution();
            if (flat) {
                ++m_dropped;
            } else {
                m_triangles.push_back(triangle);
            }
        }
    }
    m_points = merger.points();
    drop_doubled();
}

// A shell of triangles that are there twice would be no solid, and enclose its volume twice.
void sdkFacetMesh::drop_doubled()
{
    std::vector<std::pair<Triangle, std::size_t>> sorted;
    sorted.reserve(m_triangles.size());
    for (auto triangle : m_triangles) {
        // Wherever it begins.
        std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()), triangle.end());
        sorted.emplace_back(triangle, sorted.size());
    }
    std::sort(sorted.begin(), sorted.end());
    std::vector<bool> again(m_triangles.size(), false);
    for (std::size_t at = 1; at < sorted.size(); ++at) {
        again[sorted[at].second] = sorted[at].first == sorted[at - 1].first;
    }
    std::size_t number = 0;
    m_doubled = static_cast<std::int64_t>(
        std::erase_if(m_triangles, [&](Triangle const &) { return again[number++]; }));
}

std::vector<sdkFacetMesh::Side> sdkFacetMesh::sorted_sides() const
{
    std::vector<Side> sides;
    sides.reserve(3 * m_triangles.size());
    std::uint32_t number = 0;
    for (auto const & triangle : m_triangles) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            sides.push_back({sdk_facet_edge(triangle[corner], triangle[(corner + 1) % 3]), number++});
        }
    }
    std::sort(sides.begin(), sides.end(), [](Side const & one, Side const & other) {
        return std::pair(one.edge, one.number) < std::pair(other.edge, other.number);
    });
    return sides;
}

void sdkFacetMesh::find_neighbours(std::vector<Side> const & sides)
{
    m_neighbours.assign(m_triangles.size(), {none, none, none});
    for (std::size_t at = 0; at < sides.size();) {
        std::size_t end = at;
        while (end < sides.size() && sides[end].edge == sides[at].edge) {
            ++end;
        }
        if (end - at == 2) {
            auto const one = sides[at].number;
            auto const other = sides[at + 1].number;
            m_neighbours[one / 3][one % 3] = static_cast<int>(other / 3);
            m_neighbours[other / 3][other % 3] = static_cast<int>(one / 3);
        }
        at = end;
    }
}

void sdkFacetMesh::find_sets()
{
    m_sets.assign(m_triangles.size(), none);
    std::vector<char> turned(m_triangles.size(), 0);
    for (std::size_t seed = 0; seed < m_triangles.size(); ++seed) {
        if (m_sets[seed] == none) {
            reach_from(static_cast<int>(seed), turned);
        }
    }
}

// Gives the number of a new set to all triangles that are connected with the seed, and turns them alike.
void sdkFacetMesh::reach_from(int seed, std::vector<char> & turned)
{
    int const set = sets();
    m_closed.push_back(true);
    m_sets[static_cast<std::size_t>(seed)] = set;
    std::vector<int> reached{seed};
    std::size_t count_turned = 0;
    for (std::size_t at = 0; at < reached.size(); ++at) {
        auto const number = static_cast<std::size_t>(reached[at]);
        auto const & corners = m_triangles[number];
        for (std::size_t side = 0; side < 3; ++side) {
            int const other = m_neighbours[number][side];
            if (other == none || m_sets[static_cast<std::size_t>(other)] != none) {
                continue;
            }
            m_sets[static_cast<std::size_t>(other)] = set;
            bool const alike = !has_side(triangle(other), corners[side], corners[(side + 1) % 3]);
            turned[static_cast<std::size_t>(other)] =
                static_cast<char>(alike == (turned[number] != 0) ? 1 : 0);
            count_turned += static_cast<std::size_t>(turned[static_cast<std::size_t>(other)]);
            reached.push_back(other);
        }
    }
    // The side to which most of them looked at first is the one that was meant.
    bool const others = 2 * count_turned > reached.size();
    for (auto const member : reached) {
        auto const number = static_cast<std::size_t>(member);
        if ((turned[number] != 0) != others) {
            std::swap(m_triangles[number][1], m_triangles[number][2]);
            std::swap(m_neighbours[number][0], m_neighbours[number][2]);
            ++m_turned;
        }
    }
}

void sdkFacetMesh::find_borders(std::vector<Side> const & sides)
{
    std::vector<int> uses;
    for (std::size_t at = 0; at < sides.size();) {
        uses.clear();
        auto const edge = sides[at].edge;
        for (; at < sides.size() && sides[at].edge == edge; ++at) {
            uses.push_back(m_sets[sides[at].number / 3]);
        }
        for (auto const set : uses) {
            if (std::count(uses.begin(), uses.end(), set) % 2 != 0) {
                m_closed[static_cast<std::size_t>(set)] = false;
            }
        }
    }
    m_open = std::count_if(m_sets.begin(), m_sets.end(), [&](int set) { return !closed(set); });
}
