#include "sdk/exchange/sdkDividedFaces.h"

#include "sdk/exchange/sdkRepairCheck.h"
#include "sdk/geometry/sdkReShapeHistory.h"

#include <ShapeUpgrade_ClosedFaceDivide.hxx>
#include <ShapeUpgrade_ShapeDivide.hxx>
#include <ShapeUpgrade_WireDivide.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <utility>

namespace {

using Chosen = std::function<bool(TopoDS_Face const &)>;

class Divide : public ShapeUpgrade_ClosedFaceDivide {
public:
    explicit Divide(Chosen chosen) : m_chosen(std::move(chosen)) {}

    Standard_Boolean SplitSurface() override
    {
        return m_chosen(myFace) && ShapeUpgrade_ClosedFaceDivide::SplitSurface();
    }

private:
    Chosen m_chosen;
};

bool any(TopoDS_Shape const & shape, Chosen const & chosen)
{
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        if (chosen(TopoDS::Face(face.Current()))) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<TopoDS_Shape> sdk_divide_faces(TopoDS_Shape const & shape, Chosen const & chosen,
                                             sdkShapeHistory & history)
{
    if (!any(shape, chosen)) {
        return std::nullopt;
    }
    Handle(Divide) const faces = new Divide(chosen);
    faces->SetWireDivideTool(new ShapeUpgrade_WireDivide);
    ShapeUpgrade_ShapeDivide divide(shape);
    divide.SetSplitFaceTool(faces);
    if (!divide.Perform() || divide.Status(ShapeExtend_FAIL) || !sdk_no_worse(shape, divide.Result())) {
        return std::nullopt;
    }
    sdk_remember(shape, divide.GetContext(), history);
    return divide.Result();
}
