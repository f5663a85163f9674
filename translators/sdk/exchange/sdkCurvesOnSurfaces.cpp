#include "sdk/exchange/sdkCurvesOnSurfaces.h"

#include <BRep_Tool.hxx>
#include <Geom_Line.hxx>
#include <Geom_Plane.hxx>
#include <Interface_Static.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

namespace {

constexpr char const * setting = "write.surfacecurve.mode";

bool is_polyhedral(TopoDS_Shape const & shape)
{
    TopLoc_Location location;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More(); face.Next()) {
        auto const & surface = BRep_Tool::Surface(TopoDS::Face(face.Current()), location);
        if (Handle(Geom_Plane)::DownCast(surface).IsNull()) {
            return false;
        }
    }
    double first = 0;
    double last = 0;
    for (TopExp_Explorer edge(shape, TopAbs_EDGE); edge.More(); edge.Next()) {
        auto const & curve = BRep_Tool::Curve(TopoDS::Edge(edge.Current()), location, first, last);
        if (Handle(Geom_Line)::DownCast(curve).IsNull()) {
            return false;
        }
    }
    return true;
}

} // namespace

// Only the controller of STEP knows the setting.
sdkCurvesOnSurfaces::sdkCurvesOnSurfaces()
    : m_present(Interface_Static::IsPresent(setting)), m_old(m_present ? Interface_Static::IVal(setting) : 0)
{
}

sdkCurvesOnSurfaces::~sdkCurvesOnSurfaces()
{
    if (m_present) {
        Interface_Static::SetIVal(setting, m_old);
    }
}

void sdkCurvesOnSurfaces::choose_for(TopoDS_Shape const & shape)
{
    if (m_present && m_old != 0) {
        Interface_Static::SetIVal(setting, is_polyhedral(shape) ? 0 : m_old);
    }
}
