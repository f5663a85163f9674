#include "sdk/exchange/sdkInexactSeams.h"

#include "sdk/exchange/sdkRepairCheck.h"
#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkReShapeHistory.h"

#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <ShapeUpgrade_ClosedFaceDivide.hxx>
#include <ShapeUpgrade_ShapeDivide.hxx>
#include <ShapeUpgrade_WireDivide.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Vertex.hxx>

namespace {

constexpr double exact = 1e-3; // in millimetres

double gap_at(TopoDS_Vertex const & vertex, gp_Pnt const & point)
{
    return vertex.IsNull() ? 0 : BRep_Tool::Pnt(vertex).Distance(point);
}

bool has_inexact_seam(TopoDS_Face const & face)
{
    for (TopExp_Explorer explorer(face, TopAbs_EDGE); explorer.More(); explorer.Next()) {
        auto const edge = TopoDS::Edge(explorer.Current().Oriented(TopAbs_FORWARD));
        double first = 0;
        double last = 0;
        if (BRep_Tool::Degenerated(edge) || !BRepTools::IsReallyClosed(edge, face)) {
            continue;
        }
        auto const curve = BRep_Tool::Curve(edge, first, last);
        if (!curve.IsNull() && (gap_at(TopExp::FirstVertex(edge), curve->Value(first)) > exact ||
                                gap_at(TopExp::LastVertex(edge), curve->Value(last)) > exact)) {
            return true;
        }
    }
    return false;
}

class Divide : public ShapeUpgrade_ClosedFaceDivide {
public:
    Standard_Boolean SplitSurface() override
    {
        return has_inexact_seam(myFace) && ShapeUpgrade_ClosedFaceDivide::SplitSurface();
    }
};

std::optional<TopoDS_Shape> divided(TDF_Label const &, TopoDS_Shape const & shape, sdkShapeHistory & history)
{
    bool any = false;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More() && !any; face.Next()) {
        any = has_inexact_seam(TopoDS::Face(face.Current()));
    }
    if (!any || shape.ShapeType() == TopAbs_COMPOUND) {
        return std::nullopt;
    }
    Handle(Divide) const faces = new Divide;
    faces->SetWireDivideTool(new ShapeUpgrade_WireDivide);
    ShapeUpgrade_ShapeDivide divide(shape);
    divide.SetSplitFaceTool(faces);
    if (!divide.Perform() || divide.Status(ShapeExtend_FAIL) || !sdk_no_worse(shape, divide.Result())) {
        return std::nullopt;
    }
    sdk_remember(shape, divide.GetContext(), history);
    return divide.Result();
}

} // namespace

int sdk_divide_inexact_seams(sdkDocument & document)
{
    return static_cast<int>(sdk_edit_parts(document, document.parts(), divided).changed);
}
