#include "iges/igesDamage.h"

#include "iges/igesFaults.h"
#include "iges/igesHolders.h"
#include "iges/igesKinds.h"

#include <IGESData_TransfEntity.hxx>
#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <XSControl_WorkSession.hxx>

namespace {

using Entity = Handle(IGESData_IGESEntity);

class Damage {
public:
    Damage(Handle(XSControl_WorkSession) const & session, sdkContext & context)
        : m_model(Handle(IGESData_IGESModel)::DownCast(session->Model())), m_graph(session->Graph()),
          m_context(context)
    {
    }

    void seed(igesBadNumbers const & numbers)
    {
        for (int number = 1; number <= m_model->NbEntities(); ++number) {
            auto const entity = m_model->Entity(number);
            if (!iges_hands_on(entity)) {
                continue;
            }
            auto const bad = numbers.find(m_model->DNum(entity));
            if (bad != numbers.end()) {
                add(entity, {entity, bad->second, true});
            } else if (auto const fault = iges_fault(m_model, number); !fault.empty()) {
                add(entity, {entity, fault, false});
            }
        }
    }

    void take_out()
    {
        while (!m_waiting.empty()) {
            auto const entity = m_waiting.back();
            m_waiting.pop_back();
            climb(entity);
            if (m_waiting.empty()) {
                empty_holders();
            }
        }
        // A shell may name faces that the file does not have.
        for (int number = 1; number <= m_model->NbEntities(); ++number) {
            if (auto const entity = m_model->Entity(number); !damaged(entity) && iges_has_gaps(entity)) {
                m_holders.emplace(entity.get(), entity);
            }
        }
        empty_holders();
        if (!m_waiting.empty()) {
            take_out();
        }
    }

    TColStd_MapOfTransient damage() const { return m_damaged; }

private:
    struct Cause {
        Entity entity;
        std::string fault;
        bool number = false; // the fault is a number that is none
    };

    bool damaged(Entity const & entity) const { return m_damaged.Contains(entity); }

    void add(Entity const & entity, Cause const & cause)
    {
        if (m_damaged.Add(entity)) {
            m_causes.emplace(entity.get(), cause);
            m_waiting.push_back(entity);
        }
    }

    void climb(Entity const & entity)
    {
        auto const cause = m_causes.at(entity.get());
        bool used = false;
        for (auto users = m_graph.Sharings(entity); users.More(); users.Next()) {
            auto const user = Entity::DownCast(users.Value());
            if (user.IsNull() || !iges_hands_on(user)) {
                continue;
            }
            used = true;
            if (iges_is_holder(user) && user->Transf().get() != entity.get()) {
                m_holders.emplace(user.get(), user);
            } else {
                add(user, cause);
            }
        }
        if (!used) {
            tell(entity);
        }
    }

    void empty_holders()
    {
        auto const holders = std::move(m_holders);
        m_holders.clear();
        for (auto const & [key, holder] : holders) {
            Entity last;
            bool const empty = iges_drop_members(holder, [&](Entity const & member) {
                if (!damaged(member)) {
                    return false;
                }
                last = member;
                tell(member);
                return true;
            });
            if (empty) {
                add(holder, last.IsNull() ? Cause{holder, "it refers to nothing that the file has"}
                                          : m_causes.at(last.get()));
            }
        }
    }

    void tell(Entity const & entity)
    {
        if (!m_told.Add(entity)) {
            return;
        }
        auto const & cause = m_causes.at(entity.get());
        auto const & file = m_context.file();
        auto const kind = iges_type_name(entity);
        sdkText const text =
            cause.number
                ? sdkText("iges::%s, %s: %s stands where a number should be; %s (%s), which needs it, is "
                          "left out",
                          file, place(cause.entity), cause.fault, place(entity), kind)
                : sdkText("iges::%s, %s: the entity is damaged: %s; %s (%s), which needs it, is left out",
                          file, place(cause.entity), cause.fault, place(entity), kind);
        m_context.reporter().failed(1);
        m_context.account().add({.weight = sdkWeight::loss,
                                 .kind = "not-translated",
                                 .part = {},
                                 .place = place(entity),
                                 .text = text});
    }

    std::string place(Entity const & entity) const { return "D" + std::to_string(m_model->DNum(entity)); }

    Handle(IGESData_IGESModel) m_model;
    Interface_Graph const & m_graph;
    sdkContext & m_context;
    TColStd_MapOfTransient m_damaged;
    TColStd_MapOfTransient m_told;
    std::map<Standard_Transient const *, Cause> m_causes;
    std::map<Standard_Transient const *, Entity> m_holders;
    std::vector<Entity> m_waiting;
};

} // namespace

TColStd_MapOfTransient iges_take_out_damage(Handle(XSControl_WorkSession) const & session,
                                            igesBadNumbers const & numbers, sdkContext & context)
{
    Damage damage(session, context);
    damage.seed(numbers);
    damage.take_out();
    return damage.damage();
}
