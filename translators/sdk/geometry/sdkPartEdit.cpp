#include "sdk/geometry/sdkPartEdit.h"

#include "sdk/sdkAttributes.h"
#include "sdk/sdkPlaced.h"
#include "sdk/sdkScaler.h"

#include <BRep_Builder.hxx>
#include <Message_ProgressScope.hxx>
#include <NCollection_DataMap.hxx>
#include <TNaming_Builder.hxx>
#include <TopAbs.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_OrientedShapeMapHasher.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

#include <utility>
#include <vector>

namespace {

TopoDS_Shape without_place(TopoDS_Shape const & shape)
{
    return shape.Located(TopLoc_Location()).Oriented(TopAbs_FORWARD);
}

TopoDS_Shape at_place_of(TopoDS_Shape const & shape, TopoDS_Shape const & place)
{
    if (shape.IsNull()) {
        return shape;
    }
    auto const moved = shape.Moved(sdk_rigid_part(place.Location()));
    return moved.Oriented(TopAbs::Compose(place.Orientation(), shape.Orientation()));
}

class Edit {
public:
    Edit(TDF_Label part, sdkShapeEdit const & edit) : m_part(std::move(part)), m_edit(edit) {}

    sdkShapeHistory const & history() const { return m_history; }

    TopoDS_Shape operator()(TopoDS_Shape const & shape)
    {
        auto const base = shape.Located(TopLoc_Location());
        TopoDS_Shape edited;
        if (!m_done.Find(base, edited)) {
            edited = edited_base(base);
            m_done.Bind(base, edited);
            if (!edited.IsEqual(base)) {
                m_history.replace(base, edited);
            }
        }
        if (edited.IsNull()) {
            return edited;
        }
        auto const moved = edited.Moved(shape.Location(), Standard_False);
        return sdk_scale_of(shape.Location()) == 1 ? moved : m_scaler(moved, 1);
    }

private:
    TopoDS_Shape edited_base(TopoDS_Shape const & base)
    {
        if (auto const edited = m_edit(m_part, base, m_history)) {
            return *edited;
        }
        if (base.ShapeType() != TopAbs_COMPOUND) {
            return base;
        }
        BRep_Builder builder;
        TopoDS_Compound compound;
        builder.MakeCompound(compound);
        bool changed = false;
        bool empty = true;
        for (TopoDS_Iterator member(base); member.More(); member.Next()) {
            auto const edited = (*this)(member.Value());
            changed = changed || !edited.IsEqual(member.Value());
            if (!edited.IsNull()) {
                builder.Add(compound, edited);
                empty = false;
            }
        }
        if (empty) {
            return {};
        }
        return changed ? TopoDS_Shape(compound) : base;
    }

    TDF_Label m_part;
    sdkShapeEdit const & m_edit;
    sdkShapeHistory m_history;
    sdkScaler m_scaler{[this](TopoDS_Shape const & before, TopoDS_Shape const & after, double factor) {
        m_history.scale(before, after, factor);
    }};
    NCollection_DataMap<TopoDS_Shape, TopoDS_Shape, TopTools_OrientedShapeMapHasher> m_done;
};

void remove_everywhere(sdkDocument & document, TDF_Label const & label)
{
    TDF_LabelSequence users;
    XCAFDoc_ShapeTool::GetUsers(label, users);
    for (auto const & user : users) {
        if (!XCAFDoc_ShapeTool::IsComponent(user)) {
            // A free shape that is no more than a place of the part.
            document.shapes()->RemoveShape(user, Standard_True);
            continue;
        }
        auto const assembly = user.Father();
        document.shapes()->RemoveComponent(user);
        if (XCAFDoc_ShapeTool::NbComponents(assembly) == 0) {
            remove_everywhere(document, assembly);
        }
    }
    document.shapes()->RemoveShape(label, Standard_True);
}

void forget_detail(sdkDocument & document, TDF_Label const & detail)
{
    for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
        document.colours()->UnSetColor(detail, type);
    }
    document.layers()->UnSetLayers(detail);
    detail.ForgetAllAttributes(Standard_True);
}

// A detail that was divided leaves its name, colour and layers to all its pieces. False when none is there.
bool spread(sdkDocument & document, TDF_Label const & part, TDF_Label const & detail, TopAbs_ShapeEnum kind,
            TopoDS_Shape const & now)
{
    TopTools_IndexedMapOfShape pieces;
    TopExp::MapShapes(now, kind, pieces);
    bool any = false;
    for (int at = 1; at <= pieces.Extent(); ++at) {
        if (!document.shapes()->IsSubShape(part, pieces(at))) {
            continue;
        }
        TDF_Label copy;
        if (!any) {
            TNaming_Builder(detail).Generated(pieces(at));
        } else if (document.shapes()->AddSubShape(part, pieces(at), copy)) {
            sdk_add_attributes(document, detail, copy);
        }
        any = true;
    }
    return any;
}

// Gives the part another shape and lets its labelled sub-shapes follow. Returns how many of them are gone.
std::int64_t set_shape(sdkDocument & document, TDF_Label const & part, TopoDS_Shape const & shape,
                       sdkShapeHistory const & history)
{
    TDF_LabelSequence details;
    XCAFDoc_ShapeTool::GetSubShapes(part, details);
    std::vector<std::pair<TDF_Label, TopoDS_Shape>> places;
    for (auto const & detail : details) {
        places.emplace_back(detail, XCAFDoc_ShapeTool::GetShape(detail));
    }
    document.shapes()->SetShape(part, shape);
    std::int64_t gone = 0;
    for (auto const & [detail, before] : places) {
        auto now = history.now(before);
        if (!history.scaled_nothing()) {
            now = sdk_found_in(shape, now);
        }
        bool const there = !now.IsNull() && document.shapes()->IsSubShape(part, now);
        bool const divided = !now.IsNull() && now.ShapeType() < before.ShapeType();
        if (!there && divided && spread(document, part, detail, before.ShapeType(), now)) {
            continue;
        }
        if (!there) {
            forget_detail(document, detail);
            ++gone;
        } else if (!now.IsEqual(before)) {
            TNaming_Builder(detail).Generated(now);
        }
    }
    return gone;
}

} // namespace

void sdkShapeHistory::replace(TopoDS_Shape const & before, TopoDS_Shape const & after)
{
    auto const back = sdk_rigid_part(before.Location()).Inverted();
    auto const base = without_place(before);
    auto const orientation = TopAbs::Compose(before.Orientation(), TopAbs_FORWARD);
    m_after.UnBind(base);
    if (after.IsNull()) {
        m_after.Bind(base, after);
    } else {
        m_after.Bind(base, after.Moved(back).Oriented(TopAbs::Compose(orientation, after.Orientation())));
    }
}

TopoDS_Shape sdkShapeHistory::now(TopoDS_Shape const & before) const
{
    TopoDS_Shape after;
    bool const replaced = m_after.Find(without_place(before), after);
    auto const scaled = m_scaled.find(sdk_scale_of(before.Location()));
    if (scaled != m_scaled.end() && !(replaced && after.IsNull())) {
        auto const base = replaced ? after : without_place(before);
        TopoDS_Shape larger;
        if (scaled->second.Find(without_place(base), larger)) {
            return at_place_of(larger.Moved(base.Location())
                                   .Oriented(TopAbs::Compose(base.Orientation(), larger.Orientation())),
                               before);
        }
    }
    return replaced ? at_place_of(after, before) : before;
}

void sdkShapeHistory::scale(TopoDS_Shape const & before, TopoDS_Shape const & after, double factor)
{
    m_scaled[factor].Bind(before, after);
}

sdkEditCounts sdk_edit_parts(sdkDocument & document, TDF_LabelSequence const & parts,
                             sdkShapeEdit const & edit, Message_ProgressRange const & range)
{
    sdkEditCounts counts;
    Message_ProgressScope scope(range, nullptr, parts.Length());
    TDF_LabelSequence emptied;
    for (auto const & part : parts) {
        auto const before = XCAFDoc_ShapeTool::GetShape(part);
        Edit part_edit(part, edit);
        auto const after = before.IsNull() ? before : part_edit(before);
        if (after.IsNull()) {
            emptied.Append(part);
        } else if (!after.IsEqual(before)) {
            counts.details += set_shape(document, part, after, part_edit.history());
            ++counts.changed;
        }
        scope.Next();
        if (scope.UserBreak()) {
            counts.cancelled = true;
            break;
        }
    }
    for (auto const & part : emptied) {
        remove_everywhere(document, part);
        ++counts.emptied;
    }
    if (counts.changed + counts.emptied > 0) {
        document.shapes()->UpdateAssemblies();
    }
    return counts;
}

TopoDS_Shape sdk_edit_shape(TopoDS_Shape const & shape, sdkShapeEdit const & edit)
{
    return shape.IsNull() ? shape : Edit({}, edit)(shape);
}
