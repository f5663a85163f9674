#include "lies/liesFiner.h"

#include <BRepBuilderAPI_Copy.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Quantity_Color.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <XCAFDoc_Location.hxx>

namespace {

constexpr double right_angle = 1.5707963267948966;

TopoDS_Shape shape_of(sdkDocument const & document)
{
    return XCAFDoc_ShapeTool::GetShape(document.parts().First());
}

void give(sdkDocument & document, TopoDS_Shape const & shape)
{
    document.shapes()->SetShape(document.parts().First(), shape);
}

// Of two micrometres, in the middle of a surface of 100 mm.
void raise_bump(sdkDocument & document)
{
    auto const copy = BRepBuilderAPI_Copy(shape_of(document)).Shape();
    auto const face = TopoDS::Face(TopExp_Explorer(copy, TopAbs_FACE).Current());
    TopLoc_Location location;
    auto const surface = Handle(Geom_BSplineSurface)::DownCast(BRep_Tool::Surface(face, location));
    int const u = surface->NbUPoles() / 2;
    int const v = surface->NbVPoles() / 2;
    surface->SetPole(u, v, surface->Pole(u, v).Translated(gp_Vec(0, 0, 0.002)));
    give(document, copy);
}

// The plate is as large as its corners.
void fill_hole(sdkDocument & document)
{
    Bnd_Box box;
    for (TopExp_Explorer vertex(shape_of(document), TopAbs_VERTEX); vertex.More(); vertex.Next()) {
        box.Add(BRep_Tool::Pnt(TopoDS::Vertex(vertex.Current())));
    }
    give(document, BRepPrimAPI_MakeBox(box.CornerMin(), box.CornerMax()).Shape());
}

void swap_names(sdkDocument & document)
{
    auto const parts = document.parts();
    auto const first = sdkDocument::name(parts.First());
    auto const last = sdkDocument::name(parts.Last());
    sdkDocument::set_name(parts.First(), last);
    sdkDocument::set_name(parts.Last(), first);
}

void invent_colour(sdkDocument & document)
{
    document.colours()->SetColor(document.parts().First(), Quantity_Color(Quantity_NOC_GOLD),
                                 XCAFDoc_ColorSurf);
}

void forget_layers(sdkDocument & document)
{
    for (auto const & part : document.parts()) {
        TDF_LabelSequence labels;
        XCAFDoc_ShapeTool::GetSubShapes(part, labels);
        labels.Append(part);
        for (auto const & label : labels) {
            document.layers()->UnSetLayers(label);
        }
    }
}

// Its curve no longer runs where its faces meet.
void shift_edge(sdkDocument & document)
{
    auto const copy = BRepBuilderAPI_Copy(shape_of(document)).Shape();
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(copy, TopAbs_EDGE, edges);
    auto const edge = TopoDS::Edge(edges(1));
    double first = 0;
    double last = 0;
    auto const curve = BRep_Tool::Curve(edge, first, last);
    BRep_Builder().UpdateEdge(edge, Handle(Geom_Curve)::DownCast(curve->Translated(gp_Vec(0.01, 0.01, 0.01))),
                              0.02);
    give(document, copy);
}

// A square bar, about its own axis.
void turn_instance(sdkDocument & document)
{
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(document.free_shapes().First(), components);
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(gp_Pnt(5, 5, 0), gp::DZ()), right_angle / 3);
    auto const place = XCAFDoc_ShapeTool::GetLocation(components.Last());
    XCAFDoc_Location::Set(components.Last(), place * TopLoc_Location(turn));
}

// In the plane through its centroid, so that this remains, as do volume and area.
void mirror(sdkDocument & document)
{
    auto const shape = shape_of(document);
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shape, properties);
    gp_Trsf across;
    across.SetMirror(gp_Ax2(properties.CentreOfMass(), gp::DZ()));
    give(document, BRepBuilderAPI_Transform(shape, across, Standard_True).Shape());
}

} // namespace

std::map<std::string, std::function<void(sdkDocument &)>> const & lies_finer()
{
    static std::map<std::string, std::function<void(sdkDocument &)>> const lies{
        {"bump", raise_bump},
        {"fill-hole", fill_hole},
        {"swap-names", swap_names},
        {"invent-colour", invent_colour},
        {"forget-layer", forget_layers},
        {"shift-edge", shift_edge},
        {"turn-instance", turn_instance},
        {"mirror", mirror}};
    return lies;
}
