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

#include <numeric>
#include <unordered_map>

namespace {

gp_XYZ area_vector(std::vector<gp_XYZ> const & points, sdkFacetMesh::Triangle const & triangle)
{
    auto const & origin = points[static_cast<std::size_t>(triangle[0])];
    return (points[static_cast<std::size_t>(triangle[1])] - origin)
        .Crossed(points[static_cast<std::size_t>(triangle[2])] - origin);
}

std::uint64_t directed(int from, int to)
{
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(from)) << 32U |
           static_cast<std::uint32_t>(to);
}

// Makes faces of triangles so that triangles with common points share vertices and edges.
class FaceMaker {
public:
    explicit FaceMaker(std::vector<gp_XYZ> const & points) : m_points(points), m_vertices(points.size()) {}

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
        if (auto const found = m_edges.find(directed(to, from)); found != m_edges.end()) {
            return found->second.Reversed();
        }
        auto & made = m_edges[directed(from, to)];
        if (made.IsNull()) {
            made = BRepBuilderAPI_MakeEdge(vertex(from), vertex(to)).Edge();
        }
        return made;
    }

    TopoDS_Vertex const & vertex(int number)
    {
        auto & made = m_vertices[static_cast<std::size_t>(number)];
        if (made.IsNull()) {
            m_builder.MakeVertex(made, gp_Pnt(m_points[static_cast<std::size_t>(number)]),
                                 Precision::Confusion());
        }
        return made;
    }

    std::vector<gp_XYZ> const & m_points;
    std::vector<TopoDS_Vertex> m_vertices;
    std::unordered_map<std::uint64_t, TopoDS_Edge> m_edges;
    BRep_Builder m_builder;
};

// Numbers that are joined to sets.
class Sets {
public:
    explicit Sets(std::size_t size) : m_parent(size)
    {
        std::iota(m_parent.begin(), m_parent.end(), std::size_t{0});
    }

    std::size_t find(std::size_t number)
    {
        while (m_parent[number] != number) {
            m_parent[number] = m_parent[m_parent[number]];
            number = m_parent[number];
        }
        return number;
    }

    void join(std::size_t one, std::size_t other) { m_parent[find(other)] = find(one); }

private:
    std::vector<std::size_t> m_parent;
};

// How many triangles run along each edge in each direction.
std::unordered_map<std::uint64_t, int> directed_edges(std::vector<sdkFacetMesh::Triangle> const & triangles)
{
    std::unordered_map<std::uint64_t, int> uses;
    uses.reserve(3 * triangles.size());
    for (auto const & triangle : triangles) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            ++uses[directed(triangle[corner], triangle[(corner + 1) % 3])];
        }
    }
    return uses;
}

std::uint64_t opposite(std::uint64_t edge)
{
    return edge << 32U | edge >> 32U;
}

} // namespace

sdkFacetMesh::sdkFacetMesh(TopTools_ListOfShape const & faces, double tolerance)
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

bool sdkFacetMesh::regular() const
{
    for (auto const & [edge, uses] : directed_edges(m_triangles)) {
        if (uses > 1) {
            return false;
        }
    }
    return true;
}

bool sdkFacetMesh::open() const
{
    auto const edges = directed_edges(m_triangles);
    for (auto const & [edge, uses] : edges) {
        if (!edges.contains(opposite(edge))) {
            return true;
        }
    }
    return false;
}

std::vector<TopoDS_Shape> sdkFacetMesh::shells() const
{
    Sets sets(m_triangles.size());
    std::unordered_map<std::uint64_t, std::size_t> first_of;
    std::vector<bool> closed(m_triangles.size(), true);
    for (std::size_t at = 0; at < m_triangles.size(); ++at) {
        for (std::size_t corner = 0; corner < 3; ++corner) {
            auto const edge = directed(m_triangles[at][corner], m_triangles[at][(corner + 1) % 3]);
            first_of.emplace(edge, at);
            if (auto const found = first_of.find(opposite(edge)); found != first_of.end()) {
                sets.join(found->second, at);
            }
        }
    }
    for (auto const & [edge, at] : first_of) {
        if (!first_of.contains(opposite(edge))) {
            closed[sets.find(at)] = false;
        }
    }

    FaceMaker maker(m_points);
    BRep_Builder builder;
    std::unordered_map<std::size_t, std::size_t> places;
    std::vector<TopoDS_Shape> shells;
    for (std::size_t at = 0; at < m_triangles.size(); ++at) {
        auto const [place, added] = places.try_emplace(sets.find(at), shells.size());
        if (added) {
            TopoDS_Shell shell;
            builder.MakeShell(shell);
            shell.Closed(closed[place->first]);
            shells.push_back(shell);
        }
        builder.Add(shells[place->second], maker.make(m_triangles[at]));
    }
    return shells;
}

std::vector<TopoDS_Shape> sdkFacetMesh::loose_faces() const
{
    std::vector<TopoDS_Shape> faces;
    for (auto const & triangle : m_triangles) {
        faces.push_back(FaceMaker({m_points[static_cast<std::size_t>(triangle[0])],
                                   m_points[static_cast<std::size_t>(triangle[1])],
                                   m_points[static_cast<std::size_t>(triangle[2])]})
                            .make({0, 1, 2}));
    }
    return faces;
}
