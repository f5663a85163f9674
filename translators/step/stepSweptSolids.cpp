#include "step/stepSweptSolids.h"

#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <Geom_Axis1Placement.hxx>
#include <Geom_Direction.hxx>
#include <Precision.hxx>
#include <STEPControl_ActorRead.hxx>
#include <StepData_GlobalFactors.hxx>
#include <StepGeom_Axis1Placement.hxx>
#include <StepGeom_CurveBoundedSurface.hxx>
#include <StepGeom_Direction.hxx>
#include <StepShape_ExtrudedAreaSolid.hxx>
#include <StepShape_ExtrudedFaceSolid.hxx>
#include <StepShape_FaceSurface.hxx>
#include <StepShape_RevolvedAreaSolid.hxx>
#include <StepShape_RevolvedFaceSolid.hxx>
#include <StepToGeom.hxx>
#include <StepToTopoDS_TranslateCurveBoundedSurface.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>

#include <cmath>

namespace {

class Sweep {
public:
    Sweep(Handle(STEPControl_ActorRead) const & actor, Handle(Transfer_TransientProcess) const & process)
        : m_actor(actor), m_process(process)
    {
    }

    TopoDS_Shape solid(Handle(Standard_Transient) const & entity) const
    {
        if (auto const area = Handle(StepShape_ExtrudedAreaSolid)::DownCast(entity); !area.IsNull()) {
            return extruded(swept(area->SweptArea()), area->ExtrudedDirection(), area->Depth());
        }
        if (auto const face = Handle(StepShape_ExtrudedFaceSolid)::DownCast(entity); !face.IsNull()) {
            return extruded(swept(face->SweptFace()), face->ExtrudedDirection(), face->Depth());
        }
        if (auto const area = Handle(StepShape_RevolvedAreaSolid)::DownCast(entity); !area.IsNull()) {
            return revolved(swept(area->SweptArea()), area->Axis(), area->Angle());
        }
        if (auto const face = Handle(StepShape_RevolvedFaceSolid)::DownCast(entity); !face.IsNull()) {
            return revolved(swept(face->SweptFace()), face->Axis(), face->Angle());
        }
        return {};
    }

private:
    TopoDS_Face swept(Handle(StepGeom_CurveBoundedSurface) const & area) const
    {
        StepToTopoDS_TranslateCurveBoundedSurface translation;
        return !area.IsNull() && translation.Init(area, m_process) ? translation.Value() : TopoDS_Face();
    }

    TopoDS_Face swept(Handle(StepShape_FaceSurface) const & face) const
    {
        if (face.IsNull()) {
            return {};
        }
        auto const shape = TransferBRep::ShapeResult(m_actor->TransferShape(face, m_process));
        return !shape.IsNull() && shape.ShapeType() == TopAbs_FACE ? TopoDS::Face(shape) : TopoDS_Face();
    }

    static TopoDS_Shape extruded(TopoDS_Face const & face, Handle(StepGeom_Direction) const & direction,
                                 double depth)
    {
        double const length = depth * StepData_GlobalFactors::Intance().LengthFactor();
        auto const along =
            direction.IsNull() ? Handle(Geom_Direction)() : StepToGeom::MakeDirection(direction);
        if (face.IsNull() || along.IsNull() || !(length > Precision::Confusion()) ||
            Precision::IsInfinite(length)) {
            return {};
        }
        return BRepPrimAPI_MakePrism(face, gp_Vec(along->Dir()) * length, Standard_True).Shape();
    }

    // The file turns by the right-hand rule about the axis.
    static TopoDS_Shape revolved(TopoDS_Face const & face, Handle(StepGeom_Axis1Placement) const & axis,
                                 double turn)
    {
        // Full turns are written with the digits that their writer cared for.
        constexpr double full_turn_slack = 1e-6;
        double const angle = turn * StepData_GlobalFactors::Intance().PlaneAngleFactor();
        auto const about =
            axis.IsNull() ? Handle(Geom_Axis1Placement)() : StepToGeom::MakeAxis1Placement(axis);
        if (face.IsNull() || about.IsNull() || !(angle > Precision::Angular()) ||
            angle > 2 * M_PI + full_turn_slack) {
            return {};
        }
        if (angle > 2 * M_PI - full_turn_slack) {
            return BRepPrimAPI_MakeRevol(face, about->Ax1(), Standard_True).Shape();
        }
        return BRepPrimAPI_MakeRevol(face, about->Ax1(), angle, Standard_True).Shape();
    }

    Handle(STEPControl_ActorRead) m_actor;
    Handle(Transfer_TransientProcess) m_process;
};

} // namespace

TopoDS_Shape step_swept_solid(Handle(Standard_Transient) const & entity,
                              Handle(STEPControl_ActorRead) const & actor,
                              Handle(Transfer_TransientProcess) const & process)
{
    return Sweep(actor, process).solid(entity);
}

bool step_is_swept_solid(Handle(Standard_Transient) const & entity)
{
    return entity->IsKind(STANDARD_TYPE(StepShape_SweptAreaSolid)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_SweptFaceSolid));
}
