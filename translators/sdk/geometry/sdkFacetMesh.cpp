#include "sdk/geometry/sdkFacetMesh.h"

#include "sdk/geometry/sdkVertexMerger.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Plane.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Vertex.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace {

gp_XYZ area_vector(std::vector<gp_XYZ> const & points, sdkFacetMesh::Triangle const & triangle)
{
    auto const & origin = points[static_cast<std::size_t>(triangle[0])];
    return (points[static_cast<std::size_t>(triangle[1])] - origin)
        .Crossed(points[static_cast<std::size_t>(triangle[2])] - origin);
}

std::uint64_t edge_of(int one, int other)
{
    auto const [low, high] = std::minmax(one, other);
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(low)) << 32U |
           static_cast<std::uint32_t>(high);
}

// Makes faces of triangles so that triangles with common points share vertices and edges.
class FaceMaker {
public:
    explicit FaceMaker(std::vector<gp_XYZ> const & points) : m_points(points) {}

    TopoDS_Face make(sdkFacetMesh::Triangle const & triangle)
    {
        TopoDS_Wire wire;
        m_builder.MakeWire(wire);
        for (std::size_t corner = 0; corner < 3; ++corner) {
            m_builder.Add(wire, edge(triangle[corner], triangle[(corner + 1) % 3]));
        }
        wire.Closed(Standard_True);
        gp_Pln const plane(gp_Pnt{m_points[static_cast<std::size_t>(triangle[0])]},
                           gp_Dir(area_vector(m_points, triangle)));
        TopoDS_Face face;
        m_builder.MakeFace(face, new Geom_Plane(plane), Precision::Confusion());
        m_builder.Add(face, wire);
        return face;
    }

private:
    TopoDS_Shape edge(int from, int to)
    {
        auto & made = m_edges[edge_of(from, to)];
        if (made.IsNull()) {
            made = BRepBuilderAPI_MakeEdge(vertex(std::min(from, to)), vertex(std::max(from, to))).Edge();
        }
        return from < to ? made : made.Reversed();
    }

    TopoDS_Vertex const & vertex(int number)
    {
        auto & made = m_vertices[number];
        if (made.IsNull()) {
            m_builder.MakeVertex(made, gp_Pnt(m_points[static_cast<std::size_t>(number)]),
                                 Precision::Confusion());
        }
        return made;
    }

    std::vector<gp_XYZ> const & m_points;
    std::unordered_map<int, TopoDS_Vertex> m_vertices;
    std::unordered_map<std::uint64_t, TopoDS_Edge> m_edges;
    BRep_Builder m_builder;
};

} // namespace

sdkFacetMesh::sdkFacetMesh(TopTools_ListOfShape const & faces, double tolerance)
{
    collect(faces, tolerance);
    connect();
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
        for (int node = 1; node <= mesh->NbNodes(); ++node) {
            numbers.push_back(merger.add(mesh->Node(node).Transformed(location.Transformation()).XYZ()));
        }
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
                              area_vector(merger.points(), triangle).Modulus() <= gp::Resolution();
            if (flat) {
                ++m_dropped;
            } else {
                m_triangles.push_back(triangle);
            }
        }
    }
    m_points = merger.points();
}

std::vector<sdkFacetMesh::Side> sdkFacetMesh::sorted_sides() const
{
    std::vector<Side> sides;
    sides.reserve(3 * m_triangles.size());
    for (std::size_t at = 0; at < m_triangles.size(); ++at) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            int const from = m_triangles[at][corner];
            int const to = m_triangles[at][(corner + 1) % 3];
            sides.push_back({edge_of(from, to), at, from < to});
        }
    }
    std::sort(sides.begin(), sides.end(),
              [](Side const & one, Side const & other) { return one.edge < other.edge; });
    return sides;
}

void sdkFacetMesh::connect()
{
    struct Neighbour {
        std::size_t triangle;
        bool turned;
    };
    auto const sides = sorted_sides();
    auto const end_of_edge = [&](std::size_t begin) {
        std::size_t end = begin;
        while (end < sides.size() && sides[end].edge == sides[begin].edge) {
            ++end;
        }
        return end;
    };
    std::vector<std::vector<Neighbour>> neighbours(m_triangles.size());
    for (std::size_t at = 0; at < sides.size(); at = end_of_edge(at)) {
        auto const uses = end_of_edge(at) - at;
        if (uses == 2) {
            bool const turned = sides[at].forward == sides[at + 1].forward;
            neighbours[sides[at].triangle].push_back({sides[at + 1].triangle, turned});
            neighbours[sides[at + 1].triangle].push_back({sides[at].triangle, turned});
        }
    }

    constexpr auto none = static_cast<std::size_t>(-1);
    m_sets.assign(m_triangles.size(), none);
    std::vector<bool> turned(m_triangles.size(), false);
    for (std::size_t seed = 0; seed < m_triangles.size(); ++seed) {
        if (m_sets[seed] != none) {
            continue;
        }
        auto const set = m_closed.size();
        m_closed.push_back(true);
        m_sets[seed] = set;
        std::vector<std::size_t> reached{seed};
        std::size_t count_turned = 0;
        for (std::size_t at = 0; at < reached.size(); ++at) {
            auto const triangle = reached[at];
            for (auto const & neighbour : neighbours[triangle]) {
                if (m_sets[neighbour.triangle] == none) {
                    m_sets[neighbour.triangle] = set;
                    turned[neighbour.triangle] = turned[triangle] != neighbour.turned;
                    count_turned += turned[neighbour.triangle] ? 1 : 0;
                    reached.push_back(neighbour.triangle);
                }
            }
        }
        // The side to which most of them looked at first is the one that was meant.
        bool const others = 2 * count_turned > reached.size();
        for (auto const triangle : reached) {
            if (turned[triangle] != others) {
                std::swap(m_triangles[triangle][1], m_triangles[triangle][2]);
                ++m_turned;
            }
        }
    }

    for (std::size_t at = 0; at < sides.size();) {
        auto const end = end_of_edge(at);
        for (std::size_t one = at; one < end; ++one) {
            auto const set = m_sets[sides[one].triangle];
            auto const uses = std::count_if(sides.begin() + static_cast<std::ptrdiff_t>(at),
                                            sides.begin() + static_cast<std::ptrdiff_t>(end),
                                            [&](Side const & side) { return m_sets[side.triangle] == set; });
            if (uses % 2 != 0) {
                m_closed[set] = false;
            }
        }
        at = end;
    }
    m_open = std::count_if(m_sets.begin(), m_sets.end(), [&](std::size_t set) { return !m_closed[set]; });
}

std::vector<TopoDS_Shape> sdkFacetMesh::shells() const
{
    std::vector<std::vector<std::size_t>> members(m_closed.size());
    for (std::size_t at = 0; at < m_sets.size(); ++at) {
        members[m_sets[at]].push_back(at);
    }
    BRep_Builder builder;
    std::vector<TopoDS_Shape> shells;
    for (std::size_t set = 0; set < members.size(); ++set) {
        // Shells that only touch share no edges.
        FaceMaker maker(m_points);
        TopoDS_Shell shell;
        builder.MakeShell(shell);
        for (auto const triangle : members[set]) {
            builder.Add(shell, maker.make(m_triangles[triangle]));
        }
        shell.Closed(m_closed[set]);
        shells.push_back(shell);
    }
    return shells;
}
