#include "sdk/geometry/sdkFacetShells.h"

#include "sdk/geometry/sdkFacetOutlines.h"

#include <BRep_Builder.hxx>
#include <Geom_Line.hxx>
#include <Geom_Plane.hxx>
#include <Precision.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Vertex.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <unordered_map>

namespace {

// Makes the faces of one shell.
class FaceMaker {
public:
    FaceMaker(sdkFacetMesh const & mesh, sdkFacetOutlines const & outlines)
        : m_mesh(mesh), m_outlines(outlines)
    {
    }

    TopoDS_Face make(int region)
    {
        auto const plane = m_outlines.regions().plane(region);
        TopoDS_Face face;
        m_builder.MakeFace(face, new Geom_Plane(gp_Pln(gp_Pnt(plane.origin), gp_Dir(plane.normal))),
                           Precision::Confusion());
        for (auto const & line : m_outlines.edges(region)) {
            TopoDS_Wire wire;
            m_builder.MakeWire(wire);
            for (auto const & side : line) {
                m_builder.Add(wire, edge(side));
            }
            wire.Closed(Standard_True);
            m_builder.Add(face, wire);
        }
        return face;
    }

private:
    double tolerance(int point) const
    {
        return std::max(Precision::Confusion(), 1.01 * m_outlines.reach(point));
    }

    TopoDS_Shape edge(sdkFacetOutlines::Edge const & side)
    {
        auto & made = m_edges[side.number];
        if (made.IsNull()) {
            auto const [low, high] = std::minmax(side.from, side.to);
            gp_Pnt const begin(m_mesh.point(low));
            gp_Vec const along(begin, gp_Pnt(m_mesh.point(high)));
            // No vertex may be narrower than its edges.
            double const width = std::max(tolerance(low), tolerance(high));
            m_builder.MakeEdge(made, new Geom_Line(begin, gp_Dir(along)), width);
            m_builder.UpdateVertex(vertex(low), width);
            m_builder.UpdateVertex(vertex(high), width);
            m_builder.Add(made, vertex(low).Oriented(TopAbs_FORWARD));
            m_builder.Add(made, vertex(high).Oriented(TopAbs_REVERSED));
            m_builder.Range(made, 0, along.Magnitude());
        }
        return side.from < side.to ? made : made.Reversed();
    }

    TopoDS_Vertex const & vertex(int point)
    {
        auto & made = m_vertices[point];
        if (made.IsNull()) {
            m_builder.MakeVertex(made, gp_Pnt(m_mesh.point(point)), tolerance(point));
        }
        return made;
    }

    sdkFacetMesh const & m_mesh;
    sdkFacetOutlines const & m_outlines;
    std::unordered_map<int, TopoDS_Vertex> m_vertices;
    std::unordered_map<std::uint64_t, TopoDS_Edge> m_edges;
    BRep_Builder m_builder;
};

} // namespace

std::vector<TopoDS_Shape> sdk_facet_shells(sdkFacetMesh const & mesh, bool merge)
{
    sdkFacetOutlines const outlines(mesh, merge);
    auto const & regions = outlines.regions();
    std::vector<std::vector<int>> members(static_cast<std::size_t>(mesh.sets()));
    for (int region = 0; region < regions.size(); ++region) {
        members[static_cast<std::size_t>(mesh.set(regions.triangles(region).front()))].push_back(region);
    }
    BRep_Builder builder;
    std::vector<TopoDS_Shape> shells;
    for (int set = 0; set < mesh.sets(); ++set) {
        // Shells that only touch share no edges.
        FaceMaker maker(mesh, outlines);
        TopoDS_Shell shell;
        builder.MakeShell(shell);
        for (auto const region : members[static_cast<std::size_t>(set)]) {
            builder.Add(shell, maker.make(region));
        }
        shell.Closed(mesh.closed(set));
        shells.push_back(shell);
    }
    return shells;
}
