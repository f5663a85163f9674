#include "translators/faults_test/faultsShapes.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepGProp.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <GeomAPI_ProjectPointOnSurf.hxx>
#include <Geom_Surface.hxx>
#include <IGESControl_Reader.hxx>
#include <Poly_Triangulation.hxx>
#include <RWStl.hxx>
#include <STEPControl_Reader.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <utility>

namespace {

template <class Reader>
TopoDS_Shape read_by(std::string const & file)
{
    Reader reader;
    if (reader.ReadFile(file.c_str()) != IFSelect_RetDone) {
        return {};
    }
    reader.TransferRoots();
    return reader.OneShape();
}

TopoDS_Shape read_brep(std::string const & file)
{
    TopoDS_Shape shape;
    BRepTools::Read(shape, file.c_str(), BRep_Builder());
    return shape;
}

double volume_of(Handle(Poly_Triangulation) const & mesh, gp_Trsf const & place, bool turned)
{
    double volume = 0;
    for (int number = 1; number <= mesh->NbTriangles(); ++number) {
        int a = 0;
        int b = 0;
        int c = 0;
        mesh->Triangle(number).Get(a, b, c);
        if (turned) {
            std::swap(b, c);
        }
        auto const at = [&](int node) { return mesh->Node(node).Transformed(place).XYZ(); };
        volume += at(a).Dot(at(b).Crossed(at(c))) / 6;
    }
    return volume;
}

int count(TopoDS_Shape const & shape, TopAbs_ShapeEnum kind, TopAbs_ShapeEnum avoided = TopAbs_SHAPE)
{
    int number = 0;
    TopTools_MapOfShape seen;
    for (TopExp_Explorer one(shape, kind, avoided); one.More(); one.Next()) {
        number += seen.Add(one.Current()) ? 1 : 0;
    }
    return number;
}

} // namespace

TopoDS_Shape faults_read(std::string const & file, std::string const & format)
{
    return format == "STEP"   ? read_by<STEPControl_Reader>(file)
           : format == "IGES" ? read_by<IGESControl_Reader>(file)
                              : read_brep(file);
}

std::vector<double> faults_solid_volumes(TopoDS_Shape const & shape)
{
    std::vector<double> volumes;
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        GProp_GProps properties;
        BRepGProp::VolumeProperties(solid.Current(), properties, 1e-9);
        volumes.push_back(properties.Mass());
    }
    std::sort(volumes.begin(), volumes.end());
    return volumes;
}

double faults_meshed_volume(TopoDS_Shape const & shape)
{
    BRepMesh_IncrementalMesh(shape, 0.01, Standard_False, 0.05);
    double volume = 0;
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        for (TopExp_Explorer face(solid.Current(), TopAbs_FACE); face.More(); face.Next()) {
            TopLoc_Location location;
            auto const mesh = BRep_Tool::Triangulation(TopoDS::Face(face.Current()), location);
            if (!mesh.IsNull()) {
                volume += volume_of(mesh, location.Transformation(),
                                    face.Current().Orientation() == TopAbs_REVERSED);
            }
        }
    }
    return volume;
}

double faults_triangle_volume(std::string const & stl)
{
    auto const mesh = RWStl::ReadFile(stl.c_str());
    return mesh.IsNull() ? 0 : volume_of(mesh, gp_Trsf(), false);
}

int faults_shells(TopoDS_Shape const & shape)
{
    return count(shape, TopAbs_SHELL);
}

int faults_faces(TopoDS_Shape const & shape)
{
    return count(shape, TopAbs_FACE);
}

int faults_loose_edges(TopoDS_Shape const & shape)
{
    return count(shape, TopAbs_EDGE, TopAbs_FACE);
}

int faults_loose_points(TopoDS_Shape const & shape)
{
    return count(shape, TopAbs_VERTEX, TopAbs_EDGE);
}

double faults_edges_off_surfaces(TopoDS_Shape const & shape)
{
    constexpr int samples = 24;
    double farthest = 0;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        auto const surface = BRep_Tool::Surface(TopoDS::Face(face.Current()));
        for (TopExp_Explorer one(face.Current(), TopAbs_EDGE); one.More(); one.Next()) {
            auto const & edge = TopoDS::Edge(one.Current());
            if (BRep_Tool::Degenerated(edge)) {
                continue;
            }
            BRepAdaptor_Curve const curve(edge);
            double const first = curve.FirstParameter();
            double const step = (curve.LastParameter() - first) / samples;
            for (int at = 0; at <= samples; ++at) {
                GeomAPI_ProjectPointOnSurf const nearest(curve.Value(first + at * step), surface);
                farthest = std::max(farthest, nearest.NbPoints() > 0 ? nearest.LowerDistance() : 1e9);
            }
        }
    }
    return farthest;
}
