#include "iges/igesSolids.h"

#include <BRepBndLib.hxx>
#include <BRepClass3d_SolidClassifier.hxx>
#include <BRepGProp.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_DataMapOfShapeShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Solid.hxx>

#include <cmath>
#include <vector>

namespace {

// A closed shell, turned outward, with the solid that it becomes.
class Hull {
public:
    explicit Hull(TopoDS_Shape const & closed) : m_original(closed), m_shell(closed)
    {
        GProp_GProps properties;
        BRepGProp::VolumeProperties(closed, properties);
        if (properties.Mass() < 0) {
            m_shell.Reverse();
        }
        m_volume = std::abs(properties.Mass());
        BRepBndLib::Add(closed, m_box, Standard_False);
        BRep_Builder builder;
        builder.MakeSolid(m_solid);
        builder.Add(m_solid, m_shell);
    }

    TopoDS_Shape const & original() const { return m_original; }
    TopoDS_Solid const & solid() const { return m_solid; }
    double volume() const { return m_volume; }

    bool encloses(Hull const & other) const
    {
        if (other.m_volume >= m_volume) {
            return false;
        }
        auto const vertex = TopExp_Explorer(other.m_shell, TopAbs_VERTEX).Current();
        auto const point = BRep_Tool::Pnt(TopoDS::Vertex(vertex));
        return !m_box.IsOut(point) &&
               BRepClass3d_SolidClassifier(m_solid, point, Precision::Confusion()).State() == TopAbs_IN;
    }

    void add_cavity(Hull const & wall) { BRep_Builder().Add(m_solid, wall.m_shell.Reversed()); }

private:
    TopoDS_Shape m_original;
    TopoDS_Shape m_shell;
    TopoDS_Solid m_solid;
    Bnd_Box m_box;
    double m_volume = 0;
};

// The bodies by the shells that they replace; null for the walls of cavities.
TopTools_DataMapOfShapeShape bodies_of(std::vector<Hull> & hulls)
{
    constexpr auto nothing = static_cast<std::size_t>(-1);
    // All questions are asked before the first cavity is made, which changes what lies inside a solid.
    std::vector<std::size_t> depths(hulls.size(), 0);
    std::vector<std::size_t> nearest(hulls.size(), nothing);
    for (std::size_t at = 0; at < hulls.size(); ++at) {
        for (std::size_t other = 0; other < hulls.size(); ++other) {
            if (other != at && hulls[other].encloses(hulls[at])) {
                ++depths[at];
                bool const nearer =
                    nearest[at] == nothing || hulls[other].volume() < hulls[nearest[at]].volume();
                nearest[at] = nearer ? other : nearest[at];
            }
        }
    }
    TopTools_DataMapOfShapeShape bodies;
    for (std::size_t at = 0; at < hulls.size(); ++at) {
        if (depths[at] % 2 != 0) {
            hulls[nearest[at]].add_cavity(hulls[at]);
            bodies.Bind(hulls[at].original(), TopoDS_Shape());
        }
    }
    for (std::size_t at = 0; at < hulls.size(); ++at) {
        if (depths[at] % 2 == 0) {
            bodies.Bind(hulls[at].original(), hulls[at].solid());
        }
    }
    return bodies;
}

TopoDS_Shape replaced(TopoDS_Shape const & shape, TopTools_DataMapOfShapeShape const & bodies)
{
    if (bodies.IsBound(shape)) {
        return bodies.Find(shape);
    }
    if (shape.ShapeType() != TopAbs_COMPOUND) {
        return shape;
    }
    TopoDS_Compound compound;
    BRep_Builder builder;
    builder.MakeCompound(compound);
    for (TopoDS_Iterator member(shape); member.More(); member.Next()) {
        if (auto const body = replaced(member.Value(), bodies); !body.IsNull()) {
            builder.Add(compound, body);
        }
    }
    int const members = compound.NbChildren();
    if (members == 0) {
        return {};
    }
    return members == 1 ? TopoDS_Iterator(compound).Value() : compound;
}

} // namespace

TopoDS_Shape iges_with_solids(TopoDS_Shape const & shape)
{
    std::vector<Hull> hulls;
    for (TopExp_Explorer shell(shape, TopAbs_SHELL, TopAbs_SOLID); shell.More(); shell.Next()) {
        if (BRep_Tool::IsClosed(shell.Current())) {
            hulls.emplace_back(shell.Current());
        }
    }
    return replaced(shape, bodies_of(hulls));
}
