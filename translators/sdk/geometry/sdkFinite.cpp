#include "sdk/geometry/sdkFinite.h"

#include "sdk/geometry/sdkFiniteGeometry.h"
#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/sdkLimits.h"

#include <BRep_CurveRepresentation.hxx>
#include <BRep_GCurve.hxx>
#include <BRep_ListOfCurveRepresentation.hxx>
#include <BRep_TEdge.hxx>
#include <BRep_TFace.hxx>
#include <BRep_TVertex.hxx>
#include <Poly_Polygon3D.hxx>
#include <Poly_Triangulation.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Iterator.hxx>

#include <algorithm>
#include <unordered_map>

namespace {

bool is_finite(TopLoc_Location const & place)
{
    if (place.IsIdentity()) {
        return true;
    }
    auto const & transformation = place.Transformation();
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 4; ++column) {
            if (!sdk_usable(transformation.Value(row, column))) {
                return false;
            }
        }
    }
    return true;
}

bool is_finite(Handle(Poly_Triangulation) const & mesh)
{
    for (int node = 1; !mesh.IsNull() && node <= mesh->NbNodes(); ++node) {
        if (!sdk_is_finite(mesh->Node(node))) {
            return false;
        }
    }
    return true;
}

bool is_finite(BRep_CurveRepresentation const & representation)
{
    if (representation.IsCurve3D()) {
        return sdk_is_finite(representation.Curve3D());
    }
    if (representation.IsCurveOnSurface()) {
        return sdk_is_finite(representation.PCurve()) &&
               (!representation.IsCurveOnClosedSurface() || sdk_is_finite(representation.PCurve2()));
    }
    if (representation.IsPolygon3D() && !representation.Polygon3D().IsNull()) {
        auto const & nodes = representation.Polygon3D()->Nodes();
        return std::all_of(nodes.begin(), nodes.end(),
                           [](gp_Pnt const & node) { return sdk_is_finite(node); });
    }
    return true;
}

bool is_finite(BRep_TEdge const & edge)
{
    return sdk_usable(edge.Tolerance()) &&
           std::all_of(edge.Curves().begin(), edge.Curves().end(), [](auto const & representation) {
               return is_finite(representation->Location()) && is_finite(*representation);
           });
}

// Looks at each shape once, however often it is used.
class Finite {
public:
    bool operator()(TopoDS_Shape const & shape)
    {
        if (!is_finite(shape.Location())) {
            return false;
        }
        auto const * const key = shape.TShape().get();
        if (auto const known = m_known.find(key); known != m_known.end()) {
            return known->second;
        }
        bool finite = own(*key);
        for (TopoDS_Iterator member(shape, Standard_False, Standard_False); finite && member.More();
             member.Next()) {
            finite = (*this)(member.Value());
        }
        return m_known[key] = finite;
    }

private:
    static bool own(TopoDS_TShape const & shape)
    {
        if (auto const * const vertex = dynamic_cast<BRep_TVertex const *>(&shape)) {
            return sdk_usable(vertex->Tolerance()) && sdk_is_finite(vertex->Pnt());
        }
        if (auto const * const edge = dynamic_cast<BRep_TEdge const *>(&shape)) {
            return is_finite(*edge);
        }
        auto const * const face = dynamic_cast<BRep_TFace const *>(&shape);
        return !face || (sdk_usable(face->Tolerance()) && is_finite(face->Location()) &&
                         sdk_is_finite(face->Surface()) && is_finite(face->ActiveTriangulation()));
    }

    std::unordered_map<TopoDS_TShape const *, bool> m_known;
};

class Drop {
public:
    explicit Drop(sdkContext & context) : m_context(context) {}

    std::int64_t count() const { return m_count; }

    std::optional<TopoDS_Shape> operator()(TDF_Label const & part, TopoDS_Shape const & shape,
                                           sdkShapeHistory & history)
    {
        if (shape.ShapeType() == TopAbs_COMPOUND || m_finite(shape)) {
            return std::nullopt;
        }
        Handle(ShapeBuild_ReShape) const context = new ShapeBuild_ReShape;
        std::int64_t dropped = 0;
        auto const drop = [&](TopAbs_ShapeEnum kind, TopAbs_ShapeEnum avoided) {
            TopTools_MapOfShape seen;
            for (TopExp_Explorer one(shape, kind, avoided); one.More(); one.Next()) {
                if (seen.Add(one.Current()) && !m_finite(one.Current())) {
                    context->Remove(one.Current());
                    history.replace(one.Current(), TopoDS_Shape());
                    ++dropped;
                }
            }
        };
        drop(TopAbs_FACE, TopAbs_SHAPE);
        drop(TopAbs_EDGE, TopAbs_FACE);
        drop(TopAbs_VERTEX, TopAbs_EDGE);
        tell(part, std::max<std::int64_t>(dropped, 1));
        // Without one of these it is the place of the whole that is none.
        auto const rest = dropped > 0 ? context->Apply(shape) : TopoDS_Shape();
        return rest.IsNull() || !TopExp_Explorer(rest, TopAbs_VERTEX).More() ? TopoDS_Shape() : rest;
    }

private:
    void tell(TDF_Label const & part, std::int64_t number)
    {
        m_count += number;
        auto const name = sdkDocument::name(part);
        m_context.reporter().failed(number);
        m_context.account().add(
            {.weight = sdkWeight::loss,
             .kind = "not-finite",
             .part = name,
             .place = {},
             .source = static_cast<double>(number),
             .text = sdkText("geometry::%s: %d faces, curves or points of \"%s\" are left out: they have "
                             "numbers that are not "
                             "finite, or lie farther away than %g mm; export the part again",
                             m_context.file(), number, name, sdk_farthest)});
    }

    sdkContext & m_context;
    Finite m_finite;
    std::int64_t m_count = 0;
};

} // namespace

bool sdk_is_finite(TopoDS_Shape const & shape)
{
    return shape.IsNull() || Finite()(shape);
}

std::int64_t sdk_drop_not_finite(sdkDocument & document, sdkContext & context)
{
    // As a rule there is nothing to do.
    Finite finite;
    auto const parts = document.parts();
    TDF_LabelSequence bad;
    for (auto const & part : parts) {
        if (auto const shape = XCAFDoc_ShapeTool::GetShape(part); !shape.IsNull() && !finite(shape)) {
            bad.Append(part);
        }
    }
    if (bad.IsEmpty()) {
        return 0;
    }
    Drop drop(context);
    sdk_edit_parts(document, bad,
                   [&](TDF_Label const & part, TopoDS_Shape const & shape, sdkShapeHistory & history) {
                       return drop(part, shape, history);
                   });
    return drop.count();
}
