#pragma once

#include "step/stepReferences.h"

#include <STEPControl_ActorRead.hxx>
#include <Standard_Transient.hxx>
#include <StepData_StepModel.hxx>
#include <StepRepr_Representation.hxx>
#include <TColStd_MapOfTransient.hxx>
#include <TopoDS_Shape.hxx>
#include <Transfer_TransientProcess.hxx>

#include <map>

// Builds the solids that Open CASCADE leaves out: swept areas, constructive solids and their primitives,
// replicas. Each is bound to its entity before the roots are transferred, so that it gets its place, name,
// colour and layer as any other. An entity whose numbers describe no valid solid gets no result.
class stepSolids {
public:
    stepSolids(Handle(StepData_StepModel) const & model, Handle(STEPControl_ActorRead) const & actor,
               Handle(Transfer_TransientProcess) const & process, stepReferences const & references);

    // Those among the items of the representation. Its units are prepared as a side effect.
    void build(Handle(StepRepr_Representation) const & representation);

    // True for entities that describe a body, whether or not it is one that can be built.
    static bool is_solid(Handle(Standard_Transient) const & entity);

private:
    TopoDS_Shape shape_of(Handle(Standard_Transient) const & entity);
    TopoDS_Shape made(Handle(Standard_Transient) const & entity);
    TopoDS_Shape combined(Handle(Standard_Transient) const & entity);
    Handle(Standard_Transient) operand(Handle(Standard_Transient) const & entity, std::size_t index);

    Handle(StepData_StepModel) m_model;
    Handle(STEPControl_ActorRead) m_actor;
    Handle(Transfer_TransientProcess) m_process;
    stepReferences const & m_references;
    // By number in the file; filled when first needed.
    std::map<int, Handle(Standard_Transient)> m_entities;
    // Those whose operands are being built, for a file may have them in a circle.
    TColStd_MapOfTransient m_open;
};
