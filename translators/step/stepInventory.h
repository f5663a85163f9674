#pragma once

#include "sdk/sdkContext.h"
#include "step/stepGaps.h"
#include "step/stepProducts.h"

#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <Transfer_TransientProcess.hxx>

#include <map>
#include <set>
#include <string>
#include <vector>

class XSControl_WorkSession;

// Goes through the shapes of the products of a file, and through those that stand alone, after the transfer:
// counts in the account what there is, and adds a loss for every item, face and root that gave no shape.
class stepInventory {
public:
    using Entity = Handle(Standard_Transient);

    // The file is named to the user as that of the session.
    stepInventory(Handle(XSControl_WorkSession) const & session, stepTextualLinks const & links,
                  std::string file, sdkContext & context);

    // Call it once. The roots are what the toolkit was to transfer.
    void take(std::vector<Entity> const & roots);

    // Whether a loss names the entity.
    bool has_lost(Entity const & entity) const { return m_lost.count(entity.get()) > 0; }

private:
    using Representation = Handle(StepRepr_Representation);

    void take_faces();
    void take_product_shapes();
    void take_lone_shapes();
    void take_gaps();
    void take_root(Entity const & root);
    void take_representation(Representation const & representation);
    void take_item(Handle(StepRepr_RepresentationItem) const & item);
    void take_parts(Entity const & item);
    void take_geometry(Entity const & item);
    void lose(Entity const & entity, bool counted = true);

    bool has_shape(Entity const & entity) const;
    std::string label(Entity const & entity) const;
    std::string kind(Entity const & entity) const;

    Handle(XSControl_WorkSession) m_session;
    Handle(Transfer_TransientProcess) m_process;
    stepTextualLinks const & m_links;
    std::string m_file;
    sdkContext & m_context;
    stepProducts m_products;
    // Those that describe the same thing together.
    std::multimap<StepRepr_Representation const *, Representation> m_related;
    std::set<Standard_Transient const *> m_seen;
    std::set<Standard_Transient const *> m_lost;
    // The name of the product whose shape is being looked at.
    std::string m_part;
};
