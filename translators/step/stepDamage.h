#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkResult.h"
#include "step/stepTextFaults.h"

#include <Standard_Handle.hxx>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

class Interface_Graph;
class Standard_Transient;
class XSControl_WorkSession;

// Open CASCADE follows references and reckons with numbers without a look at whether the file really has
// them: what it could not read makes it crash or go on for ever. So whatever a shape needs and the file does
// not have is found before, and the smallest thing that can be left out is taken out of what holds it: the
// face of a shell, the item of a representation, the curve of a set, the instance of an assembly.
class stepDamage {
public:
    using Entity = Handle(Standard_Transient);
    using Excused = std::function<bool(Entity const & entity)>;

    // `excused` are entities whose faults are made good elsewhere.
    stepDamage(Handle(XSControl_WorkSession) const & session, std::vector<stepBadNumber> const & numbers,
               Excused const & excused, sdkContext & context);

    // Takes the damaged things out, tells the user of each, and counts it as failed. An error, with the
    // place, where a unit is damaged: nothing in the file could be relied on.
    sdkResult take_out();

private:
    struct Cause {
        Entity entity;
        std::string number; // that is none
        std::string fault;  // in the words of the library
    };

    void seed_numbers(std::vector<stepBadNumber> const & numbers);
    void seed_faults(Excused const & excused);
    void add(Entity const & entity, Cause const & cause);
    void spread();
    bool damaged(Entity const & entity) const { return m_causes.count(entity.get()) > 0; }
    void climb(Entity const & entity, Interface_Graph const & graph);
    bool empty_holders();
    void drop_instances();
    void tell(Entity const & entity);
    std::string label(Entity const & entity) const;
    std::string kind(Entity const & entity) const;

    Handle(XSControl_WorkSession) m_session;
    sdkContext & m_context;
    std::map<Standard_Transient const *, Cause> m_causes; // what each damaged entity suffers from
    std::vector<Entity> m_waiting;
    std::vector<Entity> m_holders; // what can do without some of its members
    std::set<Standard_Transient const *> m_told;
    std::set<Standard_Transient const *> m_held;
    std::vector<Entity> m_instances;
    sdkResult m_result = sdkResult::completed();
};
