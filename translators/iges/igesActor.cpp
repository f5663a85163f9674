#include "iges/igesActor.h"

#include "iges/igesInstances.h"
#include "iges/igesPrimitives.h"

#include <TransferBRep.hxx>
#include <TransferBRep_ShapeBinder.hxx>
#include <Transfer_TransientProcess.hxx>

namespace {

bool is_made_here(Handle(IGESData_IGESEntity) const & entity)
{
    return iges_is_solid(entity) || iges_is_scaled_instance(entity);
}

} // namespace

bool iges_is_solid(Handle(IGESData_IGESEntity) const & entity)
{
    return iges_is_primitive(entity) || iges_is_solid_instance(entity);
}

igesActor::igesActor(Handle(IGESData_IGESModel) const & model) : m_model(model)
{
    SetModel(model);
}

Standard_Boolean igesActor::Recognize(Handle(Standard_Transient) const & start)
{
    auto const entity = Handle(IGESData_IGESEntity)::DownCast(start);
    return !entity.IsNull() && (iges_is_solid(entity) || IGESToBRep_Actor::Recognize(start));
}

Handle(Transfer_Binder) igesActor::Transfer(Handle(Standard_Transient) const & start, Process const & process,
                                            Message_ProgressRange const & range)
{
    auto const entity = Handle(IGESData_IGESEntity)::DownCast(start);
    if (entity.IsNull()) {
        return NullResult();
    }
    if (!is_made_here(entity)) {
        prepare_members(entity, process);
        return IGESToBRep_Actor::Transfer(start, process, range);
    }
    auto const shape = own_shape(entity, process);
    return shape.IsNull() ? NullResult() : new TransferBRep_ShapeBinder(shape);
}

// The toolkit makes shapes of the members of a group or subfigure without asking an actor, but takes those
// that are there already.
void igesActor::prepare_members(Entity const & entity, Process const & process)
{
    for (auto const & member : iges_members(entity)) {
        if (!m_prepared.Add(member)) {
            continue;
        }
        if (is_made_here(member)) {
            shape_of(member, process);
        } else {
            prepare_members(member, process);
        }
    }
}

TopoDS_Shape igesActor::own_shape(Entity const & entity, Process const & process) const
{
    double const unit = m_model->GlobalSection().UnitValue();
    auto const made = [&](Entity const & other) { return shape_of(other, process); };
    auto const shape =
        iges_is_primitive(entity) ? iges_primitive(entity, unit, made) : iges_instance(entity, unit, made);
    return iges_placed(shape, entity, unit);
}

TopoDS_Shape igesActor::shape_of(Entity const & entity, Process const & process)
{
    auto binder = process->Find(entity);
    if (binder.IsNull()) {
        binder = process->Transferring(entity);
    }
    return TransferBRep::ShapeResult(binder);
}
