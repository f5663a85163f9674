#include "step/stepMappings.h"

#include "step/stepTransformation.h"

#include <BRep_Builder.hxx>
#include <Standard_Failure.hxx>
#include <StepGeom_Axis2Placement3d.hxx>
#include <StepGeom_CartesianTransformationOperator3d.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <TopoDS_Compound.hxx>
#include <TransferBRep.hxx>
#include <TransferBRep_ShapeBinder.hxx>

namespace {

Handle(StepRepr_Representation) source_of(Handle(StepRepr_MappedItem) const & item)
{
    return item->MappingSource().IsNull() ? Handle(StepRepr_Representation)()
                                          : item->MappingSource()->MappedRepresentation();
}

} // namespace

stepMappings::stepMappings(stepProducts const & products, stepSolids & solids,
                           Handle(STEPControl_ActorRead) const & actor,
                           Handle(Transfer_TransientProcess) const & process)
    : m_products(products), m_solids(solids), m_actor(actor), m_process(process)
{
}

void stepMappings::build(Handle(StepRepr_Representation) const & representation)
{
    // Deeper nests than this come from no author.
    constexpr std::size_t deepest = 500;
    if (representation.IsNull() || representation->Items().IsNull() || m_open.size() >= deepest ||
        !m_seen.insert(representation.get()).second) {
        return;
    }
    m_open.insert(representation.get());
    m_solids.build(representation);
    for (int index = 1; index <= representation->NbItems(); ++index) {
        auto const item = Handle(StepRepr_MappedItem)::DownCast(representation->ItemsValue(index));
        if (item.IsNull() || m_process->IsBound(item)) {
            continue;
        }
        auto const source = source_of(item);
        if (m_open.count(source.get()) > 0) {
            // The toolkit would follow the circle until the stack ends.
            leave_out(item);
            continue;
        }
        build(source);
        map(item, representation);
    }
    m_open.erase(representation.get());
}

void stepMappings::map(Handle(StepRepr_MappedItem) const & item,
                       Handle(StepRepr_Representation) const & target)
{
    auto const source = source_of(item);
    gp_Trsf transformation;
    if (source.IsNull() || !transformation_of(item, target, transformation)) {
        return;
    }
    bool const instance = step_is_rigid(transformation) && !makes_another_product(source, target);
    if (instance &&
        !item->MappingTarget()->IsKind(STANDARD_TYPE(StepGeom_CartesianTransformationOperator3d))) {
        return;
    }
    try {
        auto binder = m_process->Find(source);
        if (binder.IsNull()) {
            binder = m_actor->TransferShape(source, m_process);
        }
        auto const shape = TransferBRep::ShapeResult(binder);
        if (shape.IsNull()) {
            return;
        }
        if (instance) {
            // The toolkit takes operators for such that act on the axes of the source, not on its origin.
            m_process->Bind(item, new TransferBRep_ShapeBinder(shape.Moved(transformation)));
            return;
        }
        auto const copy = step_transformed_copy(shape, transformation);
        m_process->Bind(item, new TransferBRep_ShapeBinder(copy));
        m_copies.push_back({shape, copy});
    } catch (Standard_Failure const &) {
        leave_out(item);
    }
}

void stepMappings::leave_out(Handle(StepRepr_MappedItem) const & item)
{
    // Had it no result at all, the toolkit would make of it what it can. An empty one is named as none.
    TopoDS_Compound empty;
    BRep_Builder().MakeCompound(empty);
    m_process->Bind(item, new TransferBRep_ShapeBinder(empty));
}

bool stepMappings::transformation_of(Handle(StepRepr_MappedItem) const & item,
                                     Handle(StepRepr_Representation) const & target, gp_Trsf & result) const
{
    auto const origin = Handle(StepGeom_Axis2Placement3d)::DownCast(item->MappingSource()->MappingOrigin());
    if (auto const placement = Handle(StepGeom_Axis2Placement3d)::DownCast(item->MappingTarget());
        !placement.IsNull()) {
        // False means the identity here.
        if (!origin.IsNull()) {
            m_actor->ComputeTransformation(origin, placement, source_of(item), target, m_process, result);
        }
        return !origin.IsNull();
    }
    auto const transformation =
        Handle(StepGeom_CartesianTransformationOperator3d)::DownCast(item->MappingTarget());
    if (transformation.IsNull()) {
        return false;
    }
    m_actor->PrepareUnits(target, m_process);
    if (!step_transformation(transformation, result)) {
        return false;
    }
    m_actor->PrepareUnits(source_of(item), m_process);
    result.Multiply(step_from_placement(origin));
    return true;
}

bool stepMappings::makes_another_product(Handle(StepRepr_Representation) const & source,
                                         Handle(StepRepr_Representation) const & target) const
{
    auto const one = m_products.product_of(source);
    auto const other = m_products.product_of(target);
    return !one.IsNull() && !other.IsNull() && one != other && !m_products.uses(other, one);
}
