#include "lies/liesTold.h"

#include "lies/liesFiner.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRep_Builder.hxx>
#include <Quantity_Color.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>

#include <functional>
#include <map>
#include <utility>

namespace {

// A solid of the same faces, but for what becomes of its first one; a null face is left out.
TopoDS_Shape with_first_face(TopoDS_Shape const & solid,
                             std::function<TopoDS_Shape(TopoDS_Shape const &)> const & change)
{
    BRep_Builder builder;
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    bool first = true;
    for (TopExp_Explorer face(solid, TopAbs_FACE); face.More(); face.Next()) {
        auto const kept = std::exchange(first, false) ? change(face.Current()) : face.Current();
        if (!kept.IsNull()) {
            builder.Add(shell, kept);
        }
    }
    shell.Closed(true);
    TopoDS_Solid changed;
    builder.MakeSolid(changed);
    builder.Add(changed, shell);
    return changed;
}

TopoDS_Shape transformed(TopoDS_Shape const & shape, double factor, double shift)
{
    gp_Trsf change;
    change.SetScale(gp::Origin(), factor);
    change.SetTranslationPart(gp_Vec(shift, 0, 0));
    return BRepBuilderAPI_Transform(shape, change, Standard_True).Shape();
}

void give_colour(sdkDocument & document, TDF_Label const & part, Quantity_Color const & colour)
{
    TDF_LabelSequence labels;
    XCAFDoc_ShapeTool::GetSubShapes(part, labels);
    labels.Append(part);
    for (auto const & label : labels) {
        for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
            document.colours()->UnSetColor(label, type);
        }
    }
    document.colours()->SetColor(part, colour, XCAFDoc_ColorSurf);
}

Quantity_Color colour_of(sdkDocument const & document, TDF_Label const & part)
{
    Quantity_Color colour;
    TDF_LabelSequence labels;
    XCAFDoc_ShapeTool::GetSubShapes(part, labels);
    labels.Prepend(part);
    for (auto const & label : labels) {
        if (document.colours()->GetColor(label, XCAFDoc_ColorSurf, colour) ||
            document.colours()->GetColor(label, XCAFDoc_ColorGen, colour)) {
            break;
        }
    }
    return colour;
}

void swap_colours(sdkDocument & document)
{
    auto const parts = document.parts();
    auto const first = colour_of(document, parts.First());
    give_colour(document, parts.First(), colour_of(document, parts.Last()));
    give_colour(document, parts.Last(), first);
}

// At the place where it is already.
void double_instance(sdkDocument & document)
{
    auto const assembly = document.free_shapes().First();
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(assembly, components);
    TDF_Label definition;
    XCAFDoc_ShapeTool::GetReferredShape(components.Last(), definition);
    document.shapes()->AddComponent(assembly, definition, XCAFDoc_ShapeTool::GetLocation(components.Last()));
}

void change_part(sdkDocument & document, std::function<TopoDS_Shape(TopoDS_Shape const &)> const & change)
{
    auto const part = document.parts().First();
    auto const solid = TopExp_Explorer(XCAFDoc_ShapeTool::GetShape(part), TopAbs_SOLID).Current();
    document.shapes()->SetShape(part, change(solid));
}

} // namespace

void lies_tell(std::string const & lie, sdkDocument & document)
{
    static std::map<std::string, std::function<void(sdkDocument &)>> const lies{
        {"drop-face",
         [](sdkDocument & one) {
             change_part(one, [](TopoDS_Shape const & solid) {
                 return with_first_face(solid, [](TopoDS_Shape const &) { return TopoDS_Shape(); });
             });
         }},
        {"turn-face",
         [](sdkDocument & one) {
             change_part(one, [](TopoDS_Shape const & solid) {
                 return with_first_face(solid, [](TopoDS_Shape const & face) { return face.Reversed(); });
             });
         }},
        {"move",
         [](sdkDocument & one) {
             change_part(one, [](TopoDS_Shape const & solid) { return transformed(solid, 1, 1); });
         }},
        {"scale",
         [](sdkDocument & one) {
             change_part(one, [](TopoDS_Shape const & solid) { return transformed(solid, 1.001, 0); });
         }},
        {"forget-name",
         [](sdkDocument & one) { one.parts().First().ForgetAttribute(TDataStd_Name::GetID()); }},
        {"swap-colours", swap_colours},
        {"double-instance", double_instance}};
    for (auto const * all : {&lies, &lies_finer()}) {
        if (auto const found = all->find(lie); found != all->end()) {
            found->second(document);
            document.shapes()->UpdateAssemblies();
        }
    }
}
