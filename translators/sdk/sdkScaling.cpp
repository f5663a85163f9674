#include "sdk/sdkScaling.h"

#include <BRep_Tool.hxx>
#include <Poly_Polygon3D.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

namespace {

gp_Trsf scaling(double factor)
{
    gp_Trsf transformation;
    if (factor == -1) {
        transformation.SetMirror(gp_Pnt());
    } else {
        transformation.SetScale(gp_Pnt(), factor);
    }
    return transformation;
}

// The fixed point of the scaling as a shape at that place sees it.
gp_Pnt centre(TopLoc_Location const & location)
{
    return gp_Pnt().Transformed(location.Transformation().Inverted());
}

} // namespace

sdkScaling::sdkScaling(double factor) : BRepTools_TrsfModification(scaling(factor)) {}

Standard_Boolean sdkScaling::NewSurface(TopoDS_Face const & face, Handle(Geom_Surface) & surface,
                                        TopLoc_Location & location, Standard_Real & tolerance,
                                        Standard_Boolean & wires_reversed, Standard_Boolean & face_reversed)
{
    if (BRep_Tool::Surface(face, location).IsNull()) {
        return Standard_False;
    }
    return BRepTools_TrsfModification::NewSurface(face, surface, location, tolerance, wires_reversed,
                                                  face_reversed);
}

Standard_Boolean sdkScaling::NewTriangulation(TopoDS_Face const & face, Handle(Poly_Triangulation) & scaled)
{
    TopLoc_Location location;
    auto const & mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull()) {
        return Standard_False;
    }
    scaled = mesh->Copy();
    scaled->Deflection(mesh->Deflection() * std::abs(factor()));
    for (int node = 1; node <= scaled->NbNodes(); ++node) {
        scaled->SetNode(node, mesh->Node(node).Scaled(centre(location), factor()));
    }
    TopLoc_Location ignored;
    if (factor() < 0) {
        scaled->RemoveNormals();
        // A face with a surface is turned round as a whole.
        bool const turned = BRep_Tool::Surface(face, ignored).IsNull();
        for (int number = 1; turned && number <= scaled->NbTriangles(); ++number) {
            int a = 0;
            int b = 0;
            int c = 0;
            mesh->Triangle(number).Get(a, b, c);
            scaled->SetTriangle(number, Poly_Triangle(a, c, b));
        }
    }
    return Standard_True;
}

Standard_Boolean sdkScaling::NewPolygon(TopoDS_Edge const & edge, Handle(Poly_Polygon3D) & scaled)
{
    TopLoc_Location location;
    auto const & polygon = BRep_Tool::Polygon3D(edge, location);
    if (polygon.IsNull()) {
        return Standard_False;
    }
    scaled = polygon->Copy();
    scaled->Deflection(polygon->Deflection() * std::abs(factor()));
    for (auto & point : scaled->ChangeNodes()) {
        point.Scale(centre(location), factor());
    }
    return Standard_True;
}

Standard_Boolean sdkScaling::NewPolygonOnTriangulation(TopoDS_Edge const & edge, TopoDS_Face const & face,
                                                       Handle(Poly_PolygonOnTriangulation) & scaled)
{
    TopLoc_Location location;
    auto const & mesh = BRep_Tool::Triangulation(face, location);
    auto const & polygon = BRep_Tool::PolygonOnTriangulation(edge, mesh, location);
    if (mesh.IsNull() || polygon.IsNull()) {
        return Standard_False;
    }
    scaled = polygon->Copy();
    scaled->Deflection(polygon->Deflection() * std::abs(factor()));
    return Standard_True;
}
