#include "step/stepDamage.h"

#include "step/stepDefuse.h"
#include "step/stepFaults.h"
#include "step/stepHolders.h"

#include <IFSelect_Signature.hxx>
#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepData_StepModel.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_RepresentationContext.hxx>
#include <TCollection_HAsciiString.hxx>
#include <XSControl_WorkSession.hxx>

#include <string_view>

namespace {

// What hands damage on to that which refers to it. Styles, tolerances and drawings have no part in shapes.
bool hands_on(stepDamage::Entity const & entity)
{
    std::string_view const type = entity->DynamicType()->Name();
    return step_is_part_of_shapes(entity) || type.find("Unit") != std::string_view::npos ||
           type.find("Context") != std::string_view::npos;
}

} // namespace

stepDamage::stepDamage(Handle(XSControl_WorkSession) const & session,
                       std::vector<stepBadNumber> const & numbers, Excused const & excused,
                       sdkContext & context)
    : m_session(session), m_context(context)
{
    seed_numbers(numbers);
    seed_faults(excused);
}

void stepDamage::seed_numbers(std::vector<stepBadNumber> const & numbers)
{
    if (numbers.empty()) {
        return;
    }
    std::map<int, std::string> by_entity;
    for (auto const & bad : numbers) {
        by_entity.emplace(bad.entity, bad.text);
    }
    auto const model = Handle(StepData_StepModel)::DownCast(m_session->Model());
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        auto const bad = by_entity.find(model->IdentLabel(entity));
        if (bad != by_entity.end() && hands_on(entity)) {
            add(entity, {entity, bad->second, {}});
        }
    }
}

void stepDamage::seed_faults(Excused const & excused)
{
    auto const model = m_session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const & entity = model->Value(number);
        if (step_is_holder(entity) && step_has_gaps(entity)) {
            m_holders.push_back(entity);
            m_held.insert(entity.get());
        } else if (auto const fault = step_fault(model, number); !fault.empty() && !excused(entity)) {
            add(entity, {entity, {}, fault});
        }
    }
}

void stepDamage::add(Entity const & entity, Cause const & cause)
{
    if (m_causes.emplace(entity.get(), cause).second) {
        step_defuse(entity);
        m_waiting.push_back(entity);
    }
}

sdkResult stepDamage::take_out()
{
    do {
        spread();
    } while (m_result && empty_holders());
    if (m_result) {
        drop_instances();
    }
    return m_result;
}

void stepDamage::spread()
{
    if (m_waiting.empty()) {
        return;
    }
    auto const & graph = m_session->Graph();
    while (!m_waiting.empty() && m_result) {
        auto const entity = m_waiting.back();
        m_waiting.pop_back();
        climb(entity, graph);
    }
}

void stepDamage::climb(Entity const & entity, Interface_Graph const & graph)
{
    auto const cause = m_causes.at(entity.get());
    if (entity->IsKind(STANDARD_TYPE(StepRepr_NextAssemblyUsageOccurrence))) {
        m_instances.push_back(entity);
        return;
    }
    if (entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationContext))) {
        m_result = sdkResult::read_error(
            sdkText("step::%s, %s: the units or the precision of the file cannot be read because of %s; "
                    "export it again",
                    m_context.file(), label(entity), label(cause.entity)));
        return;
    }
    for (auto users = graph.Sharings(entity); users.More(); users.Next()) {
        auto const & user = users.Value();
        if (step_is_holder(user)) {
            if (m_held.insert(user.get()).second) {
                m_holders.push_back(user);
            }
        } else if (hands_on(user)) {
            add(user, cause);
        }
    }
    for (auto const & instance : step_instances_of(entity)) {
        add(instance, cause);
    }
}

// What is left without members is damaged itself. True when there is such.
bool stepDamage::empty_holders()
{
    auto const holders = std::move(m_holders);
    m_holders.clear();
    m_held.clear();
    for (auto const & holder : holders) {
        Entity last;
        bool const empty = step_drop_members(holder, [&](Entity const & member) {
            if (!damaged(member)) {
                return false;
            }
            last = member;
            tell(member);
            return true;
        });
        if (empty && !step_may_be_empty(holder)) {
            add(holder,
                last.IsNull() ? Cause{holder, {}, "nothing of it can be read"} : m_causes.at(last.get()));
        }
    }
    return !m_waiting.empty();
}

void stepDamage::drop_instances()
{
    for (auto const & instance : m_instances) {
        tell(instance);
        // Nothing refers to this assembly, so that nobody asks for its components.
        Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(instance)->SetRelatingProductDefinition(
            new StepBasic_ProductDefinition);
    }
}

void stepDamage::tell(Entity const & entity)
{
    if (!m_told.insert(entity.get()).second || step_is_place(entity)) {
        return;
    }
    auto const & cause = m_causes.at(entity.get());
    auto const & file = m_context.file();
    auto const place = label(cause.entity);
    sdkText const text =
        !cause.number.empty()
            ? sdkText("step::%s, %s: %s stands where a number should be; %s %s, which needs it, is left out",
                      file, place, cause.number, label(entity), kind(entity))
        : cause.entity == entity
            ? sdkText("step::%s, %s: the %s is damaged and left out: %s", file, place, kind(entity),
                      cause.fault)
            : sdkText("step::%s, %s: the %s is damaged: %s; %s %s, which needs it, is left out", file, place,
                      kind(cause.entity), cause.fault, label(entity), kind(entity));
    m_context.reporter().failed(1);
    m_context.account().add({.weight = sdkWeight::loss,
                             .kind = "not-translated",
                             .part = {},
                             .place = label(entity),
                             .text = text});
}

std::string stepDamage::label(Entity const & entity) const
{
    auto const text = m_session->Model()->StringLabel(entity);
    return text.IsNull() ? std::string("?") : std::string(text->ToCString());
}

std::string stepDamage::kind(Entity const & entity) const
{
    return m_session->SignType()->Value(entity, m_session->Model());
}
