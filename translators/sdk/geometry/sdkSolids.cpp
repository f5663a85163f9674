#include "sdk/geometry/sdkSolids.h"

#include <BRepBndLib.hxx>
#include <BRepClass3d_SolidClassifier.hxx>
#include <BRepGProp.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>

#include <cmath>

namespace {

double signed_volume(TopoDS_Shape const & shell)
{
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shell, properties);
    return properties.Mass();
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
