#include "iges/igesFaults.h"

#include <IGESGeom_Boundary.hxx>
#include <IGESGeom_CurveOnSurface.hxx>
#include <IGESSolid_EdgeList.hxx>
#include <IGESSolid_Face.hxx>
#include <IGESSolid_Loop.hxx>
#include <IGESSolid_ManifoldSolid.hxx>
#include <IGESSolid_Shell.hxx>
#include <IGESSolid_VertexList.hxx>
#include <Interface_Check.hxx>
#include <Interface_ReportEntity.hxx>

#include <algorithm>
#include <array>

namespace {

using Entity = Handle(IGESData_IGESEntity);

constexpr char const * nothing_there = "it refers to something that the file does not have";
constexpr char const * no_curve = "its boundary is made of something else than curves";
constexpr char const * not_listed = "it has the number of a vertex or an edge that its list does not have";

bool is_curve(Entity const & entity)
{
    constexpr std::array curves{100, 102, 104, 106, 110, 112, 126, 130, 142};
    return !entity.IsNull() && std::find(curves.begin(), curves.end(), entity->TypeNumber()) != curves.end();
}

// Vertices and edges of solids, their loops, faces and shells.
bool is_part_of_solid(Entity const & entity)
{
    return entity->TypeNumber() >= 502 && entity->TypeNumber() <= 514;
}

bool lists(Handle(IGESSolid_VertexList) const & list, int index)
{
    return !list.IsNull() && index >= 1 && index <= list->NbVertices();
}

std::string edge_list_fault(IGESSolid_EdgeList const & list)
{
    for (int edge = 1; edge <= list.NbEdges(); ++edge) {
        if (!is_curve(list.Curve(edge))) {
            return list.Curve(edge).IsNull() ? nothing_there : no_curve;
        }
        if (!lists(list.StartVertexList(edge), list.StartVertexIndex(edge)) ||
            !lists(list.EndVertexList(edge), list.EndVertexIndex(edge))) {
            return not_listed;
        }
    }
    return {};
}

std::string loop_fault(IGESSolid_Loop const & loop)
{
    for (int edge = 1; edge <= loop.NbEdges(); ++edge) {
        auto const edges = Handle(IGESSolid_EdgeList)::DownCast(loop.Edge(edge));
        auto const vertices = Handle(IGESSolid_VertexList)::DownCast(loop.Edge(edge));
        int const index = loop.ListIndex(edge);
        if (loop.EdgeType(edge) == 1 ? !lists(vertices, index)
                                     : edges.IsNull() || index < 1 || index > edges->NbEdges()) {
            return not_listed;
        }
        for (int curve = 1; curve <= loop.NbParameterCurves(edge); ++curve) {
            if (!is_curve(loop.ParametricCurve(edge, curve))) {
                return no_curve;
            }
        }
    }
    return {};
}

std::string face_fault(IGESSolid_Face const & face)
{
    for (int loop = 1; loop <= face.NbLoops(); ++loop) {
        if (face.Loop(loop).IsNull()) {
            return nothing_there;
        }
    }
    return face.Surface().IsNull() ? nothing_there : "";
}

std::string solid_fault(IGESSolid_ManifoldSolid const & solid)
{
    for (int shell = 1; shell <= solid.NbVoidShells(); ++shell) {
        if (solid.VoidShell(shell).IsNull()) {
            return nothing_there;
        }
    }
    return solid.Shell().IsNull() ? nothing_there : "";
}

std::string boundary_fault(IGESGeom_Boundary const & boundary)
{
    for (int curve = 1; curve <= boundary.NbModelSpaceCurves(); ++curve) {
        if (!is_curve(boundary.ModelSpaceCurve(curve))) {
            return no_curve;
        }
        for (int part = 1; part <= boundary.NbParameterCurves(curve); ++part) {
            if (!is_curve(boundary.ParameterCurve(curve, part))) {
                return no_curve;
            }
        }
    }
    return {};
}

std::string contour_fault(IGESGeom_CurveOnSurface const & contour)
{
    bool const bad_uv = !contour.CurveUV().IsNull() && !is_curve(contour.CurveUV());
    bool const bad_3d = !contour.Curve3D().IsNull() && !is_curve(contour.Curve3D());
    bool const none = contour.CurveUV().IsNull() && contour.Curve3D().IsNull();
    return bad_uv || bad_3d || none ? no_curve : "";
}

} // namespace

bool iges_hands_on(Entity const & entity)
{
    int const type = entity->TypeNumber();
    constexpr std::array gathering{308, 402, 408, 412, 414, 430};
    return type < 200 || type >= 500 ||
           std::find(gathering.begin(), gathering.end(), type) != gathering.end();
}

std::string iges_fault(Handle(IGESData_IGESModel) const & model, int number)
{
    auto const entity = model->Entity(number);
    if (is_part_of_solid(entity) && model->IsErrorEntity(number)) {
        auto const & check = model->ReportEntity(number)->Check();
        return check->NbFails() > 0 ? check->CFail(1) : nothing_there;
    }
    if (auto const edges = Handle(IGESSolid_EdgeList)::DownCast(entity); !edges.IsNull()) {
        return edge_list_fault(*edges);
    }
    if (auto const loop = Handle(IGESSolid_Loop)::DownCast(entity); !loop.IsNull()) {
        return loop_fault(*loop);
    }
    if (auto const face = Handle(IGESSolid_Face)::DownCast(entity); !face.IsNull()) {
        return face_fault(*face);
    }
    if (auto const solid = Handle(IGESSolid_ManifoldSolid)::DownCast(entity); !solid.IsNull()) {
        return solid_fault(*solid);
    }
    if (auto const boundary = Handle(IGESGeom_Boundary)::DownCast(entity); !boundary.IsNull()) {
        return boundary_fault(*boundary);
    }
    auto const contour = Handle(IGESGeom_CurveOnSurface)::DownCast(entity);
    return contour.IsNull() ? "" : contour_fault(*contour);
}
