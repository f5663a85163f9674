#include "sdk/sdkScaler.h"

#include "sdk/sdkPlaced.h"
#include "sdk/sdkScaling.h"

#include <BRepTools_Modifier.hxx>
#include <BRep_Builder.hxx>
#include <TopAbs.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

namespace {

TopLoc_Location scaled_place(TopLoc_Location const & location, double factor)
{
    if (location.IsIdentity() || (factor == 1 && sdk_scale_of(location) == 1)) {
        return location;
    }
    auto transformation = sdk_rigid_part(location).Transformation();
    transformation.SetTranslationPart(gp_Vec(transformation.TranslationPart() * factor));
    return TopLoc_Location(transformation);
}

TopoDS_Shape without_place(TopoDS_Shape const & shape)
{
    return shape.Located(TopLoc_Location()).Oriented(TopAbs_FORWARD);
}

} // namespace

// Members are scaled each in its own frame, as one that is used at several places must be scaled once.
TopoDS_Shape sdkScaler::operator()(TopoDS_Shape const & shape, double factor)
{
    auto const base = without_place(shape);
    double const whole = factor * sdk_scale_of(shape.Location());
    TopoDS_Shape scaled;
    if (!m_done[whole].Find(base, scaled)) {
        scaled = base.ShapeType() == TopAbs_COMPOUND ? compound(base, whole) : modified(base, whole);
        m_done[whole].Bind(base, scaled);
    }
    auto const result = scaled.Located(scaled_place(shape.Location(), factor));
    return result.Oriented(TopAbs::Compose(shape.Orientation(), scaled.Orientation()));
}

TopoDS_Shape sdkScaler::compound(TopoDS_Shape const & base, double factor)
{
    BRep_Builder builder;
    TopoDS_Compound result;
    builder.MakeCompound(result);
    bool changed = false;
    for (TopoDS_Iterator member(base); member.More(); member.Next()) {
        auto const scaled = (*this)(member.Value(), factor);
        changed = changed || !scaled.IsEqual(member.Value());
        builder.Add(result, scaled);
    }
    if (!changed) {
        return base;
    }
    if (m_listener) {
        m_listener(base, result, factor);
    }
    return result;
}

TopoDS_Shape sdkScaler::modified(TopoDS_Shape const & base, double factor) const
{
    if (factor == 1) {
        return base;
    }
    Handle(sdkScaling) const scaling = new sdkScaling(factor);
    BRepTools_Modifier const modifier(base, scaling);
    auto result = modifier.ModifiedShape(base);
    if (m_listener) {
        TopTools_IndexedMapOfShape all;
        TopExp::MapShapes(base, all);
        for (int at = 1; at <= all.Extent(); ++at) {
            auto const & one = all(at);
            auto const now = modifier.ModifiedShape(one);
            m_listener(without_place(one),
                       now.Located(TopLoc_Location())
                           .Oriented(TopAbs::Compose(one.Orientation(), now.Orientation())),
                       factor);
        }
    }
    return result;
}
