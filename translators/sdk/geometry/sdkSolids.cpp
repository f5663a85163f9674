#include "sdk/geometry/sdkSolids.h"

#include <BRepBndLib.hxx>
#include <BRepClass3d_SolidClassifier.hxx>
#include <BRepGProp.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <Geom_Line.hxx>
#include <Geom_Plane.hxx>
#include <Precision.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>

#include <cmath>
#include <optional>

namespace {

// The area vector of a plane face with straight edges, from Stokes' theorem; nothing for other faces. A point
// of the face is put into `point`.
std::optional<gp_XYZ> area_of_polygon(TopoDS_Face const & face, gp_XYZ & point)
{
    TopLoc_Location location;
    if (Handle(Geom_Plane)::DownCast(BRep_Tool::Surface(face, location)).IsNull()) {
        return std::nullopt;
    }
    gp_XYZ doubled;
    for (TopExp_Explorer explorer(face, TopAbs_EDGE); explorer.More(); explorer.Next()) {
        auto const & edge = TopoDS::Edge(explorer.Current());
        double first = 0;
        double last = 0;
        if (Handle(Geom_Line)::DownCast(BRep_Tool::Curve(edge, location, first, last)).IsNull()) {
            return std::nullopt;
        }
        point = BRep_Tool::Pnt(TopExp::FirstVertex(edge, Standard_True)).XYZ();
        doubled += point.Crossed(BRep_Tool::Pnt(TopExp::LastVertex(edge, Standard_True)).XYZ());
    }
    return doubled * 0.5;
}

// By the theorem of Gauss; integration over many facets takes long.
double signed_volume(TopoDS_Shape const & shell)
{
    double volume = 0;
    for (TopExp_Explorer face(shell, TopAbs_FACE); face.More(); face.Next()) {
        gp_XYZ point;
        if (auto const area = area_of_polygon(TopoDS::Face(face.Current()), point)) {
            volume += point.Dot(*area) / 3;
        } else {
            GProp_GProps properties;
            BRepGProp::VolumeProperties(shell, properties);
            return properties.Mass();
        }
    }
    return volume;
}

Bnd_Box box_of(TopoDS_Shape const & shape)
{
    Bnd_Box box;
    BRepBndLib::Add(shape, box, Standard_False);
    return box;
}

bool holds(Bnd_Box const & outer, Bnd_Box const & inner)
{
    return !outer.IsOut(inner.CornerMin()) && !outer.IsOut(inner.CornerMax());
}

// A solid in the making, with what is needed to find the cavities that belong to it.
struct Body {
    TopoDS_Solid solid;
    Bnd_Box box;
    double volume;

    Body(TopoDS_Shape const & shell, double enclosed) : box(box_of(shell)), volume(enclosed)
    {
        BRep_Builder builder;
        builder.MakeSolid(solid);
        builder.Add(solid, shell);
    }

    bool encloses(TopoDS_Shape const & shell) const
    {
        if (!holds(box, box_of(shell))) {
            return false;
        }
        TopExp_Explorer const vertex(shell, TopAbs_VERTEX);
        BRepClass3d_SolidClassifier classifier(solid);
        classifier.Perform(BRep_Tool::Pnt(TopoDS::Vertex(vertex.Current())), Precision::Confusion());
        return classifier.State() == TopAbs_IN;
    }
};

} // namespace

std::vector<TopoDS_Shape> sdk_make_solids(std::vector<TopoDS_Shape> const & shells)
{
    std::vector<TopoDS_Shape> open;
    std::vector<Body> bodies;
    std::vector<TopoDS_Shape> inward;
    for (auto const & shell : shells) {
        if (shell.ShapeType() != TopAbs_SHELL || !BRep_Tool::IsClosed(shell)) {
            open.push_back(shell);
        } else if (double const volume = signed_volume(shell); volume >= 0) {
            bodies.emplace_back(shell, volume);
        } else {
            inward.push_back(shell);
        }
    }
    std::vector<std::size_t> homes;
    for (auto const & shell : inward) {
        std::size_t home = bodies.size();
        for (std::size_t at = 0; at < bodies.size(); ++at) {
            bool const smaller = home == bodies.size() || bodies[at].volume < bodies[home].volume;
            if (smaller && bodies[at].encloses(shell)) {
                home = at;
            }
        }
        homes.push_back(home);
    }
    std::size_t const outer = bodies.size();
    BRep_Builder builder;
    for (std::size_t at = 0; at < inward.size(); ++at) {
        if (homes[at] < outer) {
            builder.Add(bodies[homes[at]].solid, inward[at]);
        } else {
            bodies.emplace_back(inward[at].Reversed(), std::abs(signed_volume(inward[at])));
        }
    }
    std::vector<TopoDS_Shape> result;
    for (auto const & body : bodies) {
        result.push_back(body.solid);
    }
    result.insert(result.end(), open.begin(), open.end());
    return result;
}

TopoDS_Shell sdk_shell_of(TopoDS_Shape const & face)
{
    TopoDS_Shell shell;
    BRep_Builder builder;
    builder.MakeShell(shell);
    builder.Add(shell, face);
    shell.Closed(BRep_Tool::IsClosed(shell));
    return shell;
}
