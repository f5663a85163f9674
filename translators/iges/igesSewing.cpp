#include "iges/igesSewing.h"

#include "iges/igesSolids.h"
#include "sdk/geometry/sdkJoin.h"
#include "sdk/geometry/sdkSolids.h"
#include "sdk/sdkAttributes.h"

#include <BRepBuilderAPI_Sewing.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom_Surface.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shell.hxx>

namespace {

bool can_be_sewn(TopoDS_Shape const & shape)
{
    return shape.ShapeType() == TopAbs_FACE || shape.ShapeType() == TopAbs_SHELL;
}

// A ball or a torus may be one face, which bounds a body by itself.
bool is_closed_face(TopoDS_Shape const & face)
{
    return BRep_Tool::IsClosed(sdk_shell_of(face));
}

// Files give such a face two edges where it meets itself, which have to be sewn to each other.
bool may_meet_itself(TopoDS_Shape const & face)
{
    auto const surface = BRep_Tool::Surface(TopoDS::Face(face));
    return !surface.IsNull() && (surface->IsUClosed() || surface->IsVClosed());
}

bool can_give_bodies(std::vector<TopoDS_Shape> const & faces)
{
    return faces.size() > 1 || (faces.size() == 1 && may_meet_itself(faces.front()));
}

void append(TopoDS_Shape const & shape, TopAbs_ShapeEnum kind, TopAbs_ShapeEnum avoided,
            std::vector<TopoDS_Shape> & found)
{
    for (TopExp_Explorer explorer(shape, kind, avoided); explorer.More(); explorer.Next()) {
        found.push_back(explorer.Current());
    }
}

} // namespace

void igesSewing::sew(TDF_LabelSequence const & labels, std::string const & name,
                     Message_ProgressRange const & range)
{
    auto const gathered = gather_single_faces(labels, name);
    auto const edit = [this](TDF_Label const &, TopoDS_Shape const & shape,
                             sdkShapeHistory & history) -> std::optional<TopoDS_Shape> {
        if (!can_be_sewn(shape) && shape.ShapeType() != TopAbs_COMPOUND) {
            return std::nullopt;
        }
        auto const faces = m_faces;
        auto const shells = sewn(shape, history);
        if (m_faces == faces) {
            return shape;
        }
        auto const bodies = iges_with_solids(shells);
        count_bodies(bodies);
        return bodies;
    };
    sdk_edit_parts(m_document, sdkDocument::parts_of(gathered), edit, range);
}

// A cube may come as six faces that belong to no group, each of them a free shape. They become one part.
TDF_LabelSequence igesSewing::gather_single_faces(TDF_LabelSequence const & labels, std::string const & name)
{
    TDF_LabelSequence single;
    TDF_LabelSequence others;
    std::vector<TopoDS_Shape> faces;
    for (auto const & label : labels) {
        auto const shape = XCAFDoc_ShapeTool::GetShape(label);
        if (shape.ShapeType() == TopAbs_FACE) {
            single.Append(label);
            faces.push_back(shape);
        } else {
            others.Append(label);
        }
    }
    if (single.Length() < 2) {
        return labels;
    }
    auto const part = m_document.add_shape(sdk_join(faces), name);
    for (auto const & label : single) {
        TDF_Label detail;
        if (m_document.shapes()->AddSubShape(part, XCAFDoc_ShapeTool::GetShape(label), detail)) {
            sdk_add_attributes(m_document, label, detail);
        }
        m_document.shapes()->RemoveShape(label, Standard_True);
    }
    others.Append(part);
    return others;
}

TopoDS_Shape igesSewing::sewn(TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    std::vector<TopoDS_Shape> faces;
    std::vector<TopoDS_Shape> results;
    bool changed = false;
    if (can_be_sewn(shape)) {
        append(shape, TopAbs_FACE, TopAbs_SHAPE, faces);
    } else {
        for (TopoDS_Iterator member(shape); member.More(); member.Next()) {
            if (can_be_sewn(member.Value())) {
                append(member.Value(), TopAbs_FACE, TopAbs_SHAPE, faces);
            } else if (member.Value().ShapeType() == TopAbs_COMPOUND) {
                results.push_back(sewn(member.Value(), history));
                changed = changed || !results.back().IsEqual(member.Value());
            } else {
                results.push_back(member.Value());
            }
        }
    }
    if (!changed && !can_give_bodies(faces)) {
        return shape;
    }
    sew_faces(faces, results, history);
    return sdk_join(results);
}

void igesSewing::sew_faces(std::vector<TopoDS_Shape> const & faces, std::vector<TopoDS_Shape> & results,
                           sdkShapeHistory & history)
{
    if (!can_give_bodies(faces)) {
        results.insert(results.end(), faces.begin(), faces.end());
        return;
    }
    BRepBuilderAPI_Sewing sewing(m_tolerance);
    for (auto const & face : faces) {
        sewing.Add(face);
    }
    sewing.Perform();
    auto const whole = sewing.SewedShape();
    if (whole.IsNull()) {
        results.insert(results.end(), faces.begin(), faces.end());
        return;
    }
    std::vector<TopoDS_Shape> sewn;
    append(whole, TopAbs_SHELL, TopAbs_SHAPE, sewn);
    // Faces that touch no other one.
    std::vector<TopoDS_Shape> alone;
    append(whole, TopAbs_FACE, TopAbs_SHELL, alone);
    for (auto const & face : alone) {
        sewn.push_back(is_closed_face(face) ? sdk_shell_of(face) : face);
    }
    if (faces.size() == 1 && sewn.front().ShapeType() == TopAbs_FACE) {
        results.push_back(faces.front());
        return;
    }
    for (auto const & face : faces) {
        if (sewing.IsModified(face)) {
            history.replace(face, sewing.Modified(face));
        }
    }
    results.insert(results.end(), sewn.begin(), sewn.end());
    m_faces += static_cast<std::int64_t>(faces.size());
}

void igesSewing::count_bodies(TopoDS_Shape const & shape)
{
    std::vector<TopoDS_Shape> solids;
    append(shape, TopAbs_SOLID, TopAbs_SHAPE, solids);
    std::vector<TopoDS_Shape> shells;
    append(shape, TopAbs_SHELL, TopAbs_SOLID, shells);
    m_solids += static_cast<std::int64_t>(solids.size());
    m_shells += static_cast<std::int64_t>(shells.size());
}
