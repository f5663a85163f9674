#pragma once

#include "step/stepProducts.h"
#include "step/stepSolids.h"

#include <StepRepr_MappedItem.hxx>

#include <set>
#include <vector>

class gp_Trsf;

// Builds what Open CASCADE makes of mapped items only in part: it leaves out their scale and mirror, and a
// product whose shape is that of another product mapped takes the place of the other. Such an item gets a
// copy of the geometry; all others are left to the toolkit, which keeps them as instances.
class stepMappings {
public:
    stepMappings(stepProducts const & products, stepSolids & solids,
                 Handle(STEPControl_ActorRead) const & actor,
                 Handle(Transfer_TransientProcess) const & process);

    // Builds the items of the representation that need it, solids and mapped ones, behind those of the
    // representations that it maps.
    void build(Handle(StepRepr_Representation) const & representation);

    // A shape and its copy. Faces and solids of both come in the same order.
    struct Copy {
        TopoDS_Shape source;
        TopoDS_Shape copy;
    };
    std::vector<Copy> const & copies() const { return m_copies; }

private:
    void map(Handle(StepRepr_MappedItem) const & item, Handle(StepRepr_Representation) const & target);
    void leave_out(Handle(StepRepr_MappedItem) const & item);
    bool transformation_of(Handle(StepRepr_MappedItem) const & item,
                           Handle(StepRepr_Representation) const & target, gp_Trsf & result) const;
    bool makes_another_product(Handle(StepRepr_Representation) const & source,
                               Handle(StepRepr_Representation) const & target) const;

    stepProducts const & m_products;
    stepSolids & m_solids;
    Handle(STEPControl_ActorRead) m_actor;
    Handle(Transfer_TransientProcess) m_process;
    std::set<StepRepr_Representation const *> m_seen;
    // Those whose own mapped items are being built, for a file may have them in a circle.
    std::set<StepRepr_Representation const *> m_open;
    std::vector<Copy> m_copies;
};
