#include "sdk/geometry/sdkUnbounded.h"

#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkPointText.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>

#include <vector>

namespace {

// A parameter within a range that may have no ends.
double within(double first, double last)
{
    bool const begins = !Precision::IsInfinite(first);
    bool const ends = !Precision::IsInfinite(last);
    return begins && ends ? 0.5 * (first + last) : begins ? first : ends ? last : 0.0;
}

bool endless(double first, double last)
{
    return Precision::IsInfinite(first) || Precision::IsInfinite(last);
}

// A point of a face that has no end.
std::optional<gp_Pnt> point_of_endless(TopoDS_Face const & face)
{
    TopLoc_Location location;
    auto const & surface = BRep_Tool::Surface(face, location);
    if (surface.IsNull()) {
        return std::nullopt;
    }
    double first_u = 0;
    double last_u = 0;
    double first_v = 0;
    double last_v = 0;
    BRepTools::UVBounds(face, first_u, last_u, first_v, last_v);
    if (!endless(first_u, last_u) && !endless(first_v, last_v)) {
        return std::nullopt;
    }
    return BRepAdaptor_Surface(face, Standard_False).Value(within(first_u, last_u), within(first_v, last_v));
}

std::optional<gp_Pnt> point_of_endless(TopoDS_Edge const & edge)
{
    double first = 0;
    double last = 0;
    TopLoc_Location location;
    if (BRep_Tool::Curve(edge, location, first, last).IsNull() || !endless(first, last)) {
        return std::nullopt;
    }
    return BRepAdaptor_Curve(edge).Value(within(first, last));
}

class Drop {
public:
    Drop(std::string format, sdkContext & context, bool curves)
        : m_format(std::move(format)), m_context(context), m_curves(curves)
    {
    }

    std::int64_t count() const { return m_count; }

    std::optional<TopoDS_Shape> operator()(TDF_Label const & part, TopoDS_Shape const & shape,
                                           sdkShapeHistory & history)
    {
        if (shape.ShapeType() == TopAbs_COMPOUND) {
            return std::nullopt;
        }
        std::vector<TopoDS_Shape> dropped;
        TopTools_MapOfShape seen;
        for (TopExp_Explorer explorer(shape, TopAbs_FACE); explorer.More(); explorer.Next()) {
            auto const & face = TopoDS::Face(explorer.Current());
            auto const point = seen.Add(face) ? point_of_endless(face) : std::nullopt;
            if (point) {
                dropped.push_back(face);
                tell(part, *point,
                     "exchange::A face without end at %s%s is left out: %s files hold no such face; trim it "
                     "before it is translated");
            }
        }
        for (TopExp_Explorer explorer(shape, TopAbs_EDGE, TopAbs_FACE); m_curves && explorer.More();
             explorer.Next()) {
            auto const & edge = TopoDS::Edge(explorer.Current());
            if (auto const point = seen.Add(edge) ? point_of_endless(edge) : std::nullopt) {
                dropped.push_back(edge);
                tell(
                    part, *point,
                    "exchange::A curve without end at %s%s is left out: %s files hold no such curve; trim it "
                    "before it is translated");
            }
        }
        if (dropped.empty()) {
            return std::nullopt;
        }
        return without(shape, dropped, history);
    }

private:
    void tell(TDF_Label const & part, gp_Pnt const & point, char const * key)
    {
        ++m_count;
        auto const name = sdkDocument::name(part);
        auto const place = sdk_point_text(point);
        m_context.account().add({sdkWeight::loss, "without-end", name, place, std::nullopt, std::nullopt,
                                 sdkText(key, place, name.empty() ? name : " (" + name + ")", m_format)});
        m_context.reporter().failed(1);
    }

    static TopoDS_Shape without(TopoDS_Shape const & shape, std::vector<TopoDS_Shape> const & dropped,
                                sdkShapeHistory & history)
    {
        Handle(ShapeBuild_ReShape) const context = new ShapeBuild_ReShape;
        for (auto const & one : dropped) {
            context->Remove(one);
            history.replace(one, TopoDS_Shape());
        }
        auto const rest = context->Apply(shape);
        bool const empty = rest.IsNull() || (!TopExp_Explorer(rest, TopAbs_FACE).More() &&
                                             !TopExp_Explorer(rest, TopAbs_EDGE).More());
        return empty ? TopoDS_Shape() : rest;
    }

    std::string m_format;
    sdkContext & m_context;
    bool m_curves;
    std::int64_t m_count = 0;
};

} // namespace

std::int64_t sdk_drop_unbounded(sdkDocument & document, std::string const & format, sdkContext & context,
                                bool curves)
{
    Drop drop(format, context, curves);
    sdk_edit_parts(document, document.parts(),
                   [&](TDF_Label const & part, TopoDS_Shape const & shape, sdkShapeHistory & history) {
                       return drop(part, shape, history);
                   });
    return drop.count();
}
