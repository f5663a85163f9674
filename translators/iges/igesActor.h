#pragma once

#include <IGESData_IGESEntity.hxx>
#include <IGESData_IGESModel.hxx>
#include <IGESToBRep_Actor.hxx>
#include <TColStd_MapOfTransient.hxx>
#include <TopoDS_Shape.hxx>

// The solids that are made here without the toolkit: primitives, swept solids, instances and assemblies of
// solids.
bool iges_is_solid(Handle(IGESData_IGESEntity) const & entity);

// Makes shapes of entities: of those that the toolkit passes over or fails on by itself, and has the toolkit
// make all others. These are solid primitives and swept solids, solid instances and assemblies (types 430 and
// 184), and instances of subfigures with a scale (type 408), which the toolkit drops because the place of a
// shape must not scale. Here they have such a place; what takes the shapes makes geometry of it.
class igesActor : public IGESToBRep_Actor {
    DEFINE_STANDARD_RTTI_INLINE(igesActor, IGESToBRep_Actor)

public:
    explicit igesActor(Handle(IGESData_IGESModel) const & model);

    Standard_Boolean Recognize(Handle(Standard_Transient) const & start) Standard_OVERRIDE;
    Handle(Transfer_Binder)
        Transfer(Handle(Standard_Transient) const & start, Handle(Transfer_TransientProcess) const & process,
                 Message_ProgressRange const & range) Standard_OVERRIDE;

private:
    using Entity = Handle(IGESData_IGESEntity);
    using Process = Handle(Transfer_TransientProcess);

    void prepare_members(Entity const & entity, Process const & process);
    TopoDS_Shape own_shape(Entity const & entity, Process const & process) const;
    static TopoDS_Shape shape_of(Entity const & entity, Process const & process);

    Handle(IGESData_IGESModel) m_model;
    TColStd_MapOfTransient m_prepared;
};
