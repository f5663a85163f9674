#include "sdk/measure/sdkOuterExtent.h"

#include <BRepBndLib.hxx>
#include <BRep_Tool.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>

namespace {

bool has_surface(TopoDS_Face const & face)
{
    TopLoc_Location location;
    return !BRep_Tool::Surface(face, location).IsNull();
}

template <class Visit>
void each_corner(TopoDS_Face const & face, Visit const & visit)
{
    TopLoc_Location location;
    auto const & mesh = BRep_Tool::Triangulation(face, location);
    for (int node = 1; !mesh.IsNull() && node <= mesh->NbNodes(); ++node) {
        visit(mesh->Node(node).Transformed(location.Transformation()));
    }
}

} // namespace

Bnd_Box sdk_outer_extent(TopoDS_Shape const & shape)
{
    Bnd_Box extent;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        if (has_surface(face)) {
            BRepBndLib::Add(face, extent, Standard_False);
        } else {
            each_corner(face, [&](gp_Pnt const & point) { extent.Add(point); });
        }
    }
    return extent;
}

std::vector<gp_Pnt> sdk_face_points(TopoDS_Shape const & shape)
{
    std::vector<gp_Pnt> points;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        if (!has_surface(face)) {
            each_corner(face, [&](gp_Pnt const & point) { points.push_back(point); });
            continue;
        }
        for (TopExp_Explorer vertex(face, TopAbs_VERTEX); vertex.More(); vertex.Next()) {
            points.push_back(BRep_Tool::Pnt(TopoDS::Vertex(vertex.Current())));
        }
    }
    return points;
}

bool sdk_triangles_only(TopoDS_Shape const & shape)
{
    TopExp_Explorer face(shape, TopAbs_FACE);
    bool const any = face.More();
    while (face.More() && !has_surface(TopoDS::Face(face.Current()))) {
        face.Next();
    }
    return any && !face.More();
}
