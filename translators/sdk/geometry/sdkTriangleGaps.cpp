#include "sdk/geometry/sdkTriangleGaps.h"

#include <BRep_Tool.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Vertex.hxx>

#include <cstdlib>
#include <unordered_map>
#include <vector>

namespace {

// The triangles of one solid.
class Skin {
public:
    explicit Skin(TopoDS_Shape const & solid)
    {
        TopExp::MapShapes(solid, TopAbs_VERTEX, m_vertices);
        TopExp::MapShapes(solid, TopAbs_EDGE, m_edges);
        m_points = m_vertices.Extent();
        m_inner.resize(static_cast<std::size_t>(m_edges.Extent()));
        for (TopExp_Explorer face(solid, TopAbs_FACE); face.More(); face.Next()) {
            add(TopoDS::Face(face.Current()));
        }
    }

    std::int64_t unmatched() const
    {
        std::int64_t count = 0;
        for (auto const & [edge, balance] : m_balances) {
            count += std::abs(balance);
        }
        return count;
    }

private:
    // The points of an edge between its ends.
    struct Inner {
        int first = 0;
        int size = 0;
    };

    void add(TopoDS_Face const & face)
    {
        auto const orientation = face.Orientation();
        TopLoc_Location location;
        auto const & mesh = BRep_Tool::Triangulation(face, location);
        if (mesh.IsNull() || (orientation != TopAbs_FORWARD && orientation != TopAbs_REVERSED)) {
            return;
        }
        std::vector<int> points(static_cast<std::size_t>(mesh->NbNodes()), -1);
        // The two sides of a seam are told apart by the orientation that they have in the face itself.
        for (TopExp_Explorer edge(face.Oriented(TopAbs_FORWARD), TopAbs_EDGE); edge.More(); edge.Next()) {
            auto const & one = TopoDS::Edge(edge.Current());
            if (auto const & polygon = BRep_Tool::PolygonOnTriangulation(one, mesh, location);
                !polygon.IsNull()) {
                number_edge(one, *polygon, points);
            }
        }
        for (auto & point : points) {
            point = point < 0 ? m_points++ : point;
        }
        for (int number = 1; number <= mesh->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            a = points[static_cast<std::size_t>(a - 1)];
            b = points[static_cast<std::size_t>(b - 1)];
            c = points[static_cast<std::size_t>(c - 1)];
            int const sign = orientation == TopAbs_FORWARD ? 1 : -1;
            pass(a, b, sign);
            pass(b, c, sign);
            pass(c, a, sign);
        }
    }

    void number_edge(TopoDS_Edge const & edge, Poly_PolygonOnTriangulation const & polygon,
                     std::vector<int> & points)
    {
        auto const put = [&](int at, int number) {
            points[static_cast<std::size_t>(polygon.Node(at) - 1)] = number;
        };
        auto const forward = TopoDS::Edge(edge.Oriented(TopAbs_FORWARD));
        int const last = polygon.NbNodes();
        bool const degenerate = BRep_Tool::Degenerated(edge);
        int const vertex = m_vertices.FindIndex(TopExp::FirstVertex(forward)) - 1;
        auto & inner = m_inner[static_cast<std::size_t>(m_edges.FindIndex(edge) - 1)];
        if (inner.size != last - 2 && !degenerate) {
            // The first face of the edge; or another one that divides it otherwise and meets no point.
            inner = {m_points, last - 2};
            m_points += last - 2;
        }
        for (int at = 2; at < last; ++at) {
            put(at, degenerate ? vertex : inner.first + at - 2);
        }
        put(1, vertex);
        put(last, m_vertices.FindIndex(TopExp::LastVertex(forward)) - 1);
    }

    void pass(int from, int to, int sign)
    {
        if (from != to) {
            auto const low = static_cast<std::uint64_t>(std::min(from, to));
            auto const high = static_cast<std::uint64_t>(std::max(from, to));
            m_balances[low << 32U | high] += from < to ? sign : -sign;
        }
    }

    TopTools_IndexedMapOfShape m_vertices;
    TopTools_IndexedMapOfShape m_edges;
    std::vector<Inner> m_inner; // per edge
    int m_points = 0;
    std::unordered_map<std::uint64_t, int> m_balances;
};

} // namespace

sdkTriangleGaps sdk_triangle_gaps(TopoDS_Shape const & shape)
{
    sdkTriangleGaps gaps;
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        bool closed = true;
        for (TopExp_Explorer shell(solid.Current(), TopAbs_SHELL); shell.More(); shell.Next()) {
            closed = closed && BRep_Tool::IsClosed(shell.Current());
        }
        if (closed) {
            ++gaps.closed_solids;
            gaps.unmatched_edges += Skin(solid.Current()).unmatched();
        }
    }
    return gaps;
}
