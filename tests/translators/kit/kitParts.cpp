#include "translators/kit/kitParts.h"

#include <BRepBuilderAPI_Copy.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeSolid.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Poly_Triangulation.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Ax2.hxx>
#include <gp_Circ.hxx>

#include <numbers>

namespace {

TopoDS_Shell shell_of(TopoDS_Shape const & solid)
{
    return TopoDS::Shell(TopExp_Explorer(solid, TopAbs_SHELL).Current());
}

TopLoc_Location at_x(double x)
{
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(x, 0, 0));
    return shift;
}

bool own_colour(sdkDocument const & document, TDF_Label const & label, Quantity_Color & colour)
{
    for (auto const type : {XCAFDoc_ColorSurf, XCAFDoc_ColorGen}) {
        if (document.colours()->GetColor(label, type, colour)) {
            return true;
        }
    }
    return false;
}

} // namespace

TopoDS_Shape kit_cube(double side)
{
    return BRepPrimAPI_MakeBox(side, side, side).Shape();
}

TopoDS_Shape kit_hollow_cube()
{
    auto const outer = BRepPrimAPI_MakeBox(20., 20., 20.).Shape();
    auto const inner = BRepPrimAPI_MakeBox(gp_Pnt(5, 5, 5), 10., 10., 10.).Shape();
    BRepBuilderAPI_MakeSolid solid(shell_of(outer));
    solid.Add(TopoDS::Shell(shell_of(inner).Reversed()));
    return solid.Solid();
}

TopoDS_Shape kit_wire()
{
    auto const straight = BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 0), gp_Pnt(10, 0, 0)).Edge();
    gp_Circ const circle(gp_Ax2(gp_Pnt(10, 5, 0), gp::DZ()), 5);
    auto const arc = BRepBuilderAPI_MakeEdge(circle, -std::numbers::pi / 2, 0).Edge();
    return BRepBuilderAPI_MakeWire(straight, arc).Wire();
}

TopoDS_Shape kit_facet_cube()
{
    // The corners are numbered by the bits of x, y and z; each row is one side, seen from outside.
    constexpr int sides[6][4] = {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                                 {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
    std::vector<gp_Pnt> points;
    for (int corner = 0; corner < 8; ++corner) {
        points.emplace_back(10. * (corner & 1), 5. * (corner & 2), 2.5 * (corner & 4));
    }
    std::vector<Poly_Triangle> triangles;
    for (auto const & corners : sides) {
        triangles.emplace_back(corners[0] + 1, corners[1] + 1, corners[2] + 1);
        triangles.emplace_back(corners[0] + 1, corners[2] + 1, corners[3] + 1);
    }
    return kit_mesh(points, triangles);
}

TopoDS_Face kit_mesh(std::vector<gp_Pnt> const & points, std::vector<Poly_Triangle> const & triangles)
{
    Handle(Poly_Triangulation) const mesh = new Poly_Triangulation(
        static_cast<int>(points.size()), static_cast<int>(triangles.size()), Standard_False);
    for (int at = 1; at <= mesh->NbNodes(); ++at) {
        mesh->SetNode(at, points[static_cast<std::size_t>(at - 1)]);
    }
    for (int at = 1; at <= mesh->NbTriangles(); ++at) {
        mesh->SetTriangle(at, triangles[static_cast<std::size_t>(at - 1)]);
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}

std::vector<TopoDS_Shape> kit_loose_faces(TopoDS_Shape const & shape)
{
    std::vector<TopoDS_Shape> faces;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        faces.push_back(BRepBuilderAPI_Copy(face.Current()).Shape());
    }
    return faces;
}

TopoDS_Face kit_inverted_face()
{
    auto const good = TopoDS::Face(TopExp_Explorer(kit_cube(10), TopAbs_FACE).Current());
    auto face = TopoDS::Face(good.EmptyCopied());
    BRep_Builder builder;
    for (TopoDS_Iterator wire(good); wire.More(); wire.Next()) {
        builder.Add(face, wire.Value().Reversed());
    }
    return face;
}

double kit_length(TopoDS_Shape const & shape)
{
    GProp_GProps properties;
    BRepGProp::LinearProperties(shape, properties);
    return properties.Mass();
}

TopoDS_Shape kit_facet_cube_turned(int count)
{
    TopLoc_Location location;
    auto const mesh = BRep_Tool::Triangulation(TopoDS::Face(kit_facet_cube()), location)->Copy();
    for (int number = 1; number <= count; ++number) {
        int a = 0;
        int b = 0;
        int c = 0;
        mesh->Triangle(number).Get(a, b, c);
        mesh->SetTriangle(number, {a, c, b});
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    return face;
}

TopoDS_Shape kit_compound(std::vector<TopoDS_Shape> const & shapes)
{
    TopoDS_Compound compound;
    BRep_Builder builder;
    builder.MakeCompound(compound);
    for (auto const & shape : shapes) {
        builder.Add(compound, shape);
    }
    return compound;
}

Quantity_Color kit_red()
{
    return {1, 0, 0, Quantity_TOC_RGB};
}

Quantity_Color kit_blue()
{
    return {0, 0, 1, Quantity_TOC_RGB};
}

void kit_add_assembly(sdkDocument & document)
{
    auto const red = document.add_shape(kit_cube(10), kit_red_name);
    auto const blue = document.add_shape(BRepPrimAPI_MakeBox(10., 10., 5.).Shape(), kit_blue_name);
    document.colours()->SetColor(red, kit_red(), XCAFDoc_ColorSurf);
    document.colours()->SetColor(blue, kit_blue(), XCAFDoc_ColorSurf);
    document.layers()->SetLayer(red, TCollection_ExtendedString(kit_layer_name));
    auto const assembly = document.shapes()->NewShape();
    sdkDocument::set_name(assembly, kit_assembly_name);
    document.shapes()->AddComponent(assembly, red, TopLoc_Location());
    document.shapes()->AddComponent(assembly, blue, at_x(20));
    document.shapes()->AddComponent(assembly, blue, at_x(40));
    document.shapes()->UpdateAssemblies();
}

Quantity_Color kit_colour(sdkDocument const & document, TDF_Label const & part)
{
    Quantity_Color colour(0, 0, 0, Quantity_TOC_RGB);
    TDF_LabelSequence places;
    XCAFDoc_ShapeTool::GetUsers(part, places);
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(part, details);
    details.Append(places);
    details.Prepend(part);
    for (auto const & label : details) {
        if (own_colour(document, label, colour)) {
            break;
        }
    }
    return colour;
}
