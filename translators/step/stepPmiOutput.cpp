#include "step/stepPmiOutput.h"

#include <algorithm>
#include <vector>

namespace {

// Lines of a STEP file should not be long, though they may.
constexpr std::size_t line_length = 80;

std::string in_lines(std::vector<std::string> const & parts)
{
    std::string text;
    std::size_t line = 0;
    for (auto const & part : parts) {
        text += part;
        line += part.size();
        if (line > line_length && part == ",") {
            text += '\n';
            line = 0;
        }
    }
    return text;
}

bool relates_models(stepKinds const & kinds)
{
    auto const * link = step_pmi_link(kinds);
    return link != nullptr && link->holds == stepPmiLink::Holds::model;
}

} // namespace

stepPmiOutput::stepPmiOutput(stepPmiSource const & source, stepPmiTargets const & targets)
    : m_source(source), m_graph(source.graph()), m_targets(targets)
{
    for (int const definition : m_graph.product_definitions()) {
        m_products.emplace(definition, targets.product_of(source.shape_of(definition)));
    }
    for (auto const & [number, entity] : m_graph.entities()) {
        auto const kinds = entity.kinds();
        for (auto const & reference : entity.references()) {
            bool const lists = may_lack(kinds, reference);
            m_users.emplace(reference.number, User{number, lists});
            m_listed[number] += lists && m_graph.find(reference.number) != nullptr ? 1 : 0;
        }
    }
    find_losses();
    find_lone_models();
    keep_reachable();
}

void stepPmiOutput::find_losses()
{
    for (auto const & [number, entity] : m_graph.entities()) {
        auto const kinds = entity.kinds();
        for (auto const & reference : entity.references()) {
            auto const gap = gap_of(reference.number);
            if (gap && !may_lack(kinds, reference)) {
                lose(number, *gap);
            }
        }
    }
}

// A drawn model that does not say whose shape it shows can only be that of the one part of its file.
void stepPmiOutput::find_lone_models()
{
    if (m_products.size() == 1 && m_products.begin()->second) {
        return;
    }
    auto const placed = placed_models();
    for (auto const & [number, entity] : m_graph.entities()) {
        if (step_is_drawn_model(entity.kinds()) && placed.count(number) == 0) {
            lose(number, stepPmiLoss::product);
        }
    }
}

// Those that are related to a shape that is in the output, or to another model that is, or hold an image of
// one.
std::set<int> stepPmiOutput::placed_models() const
{
    std::vector<int> waiting;
    for (auto const & [number, entity] : m_graph.entities()) {
        auto const kinds = entity.kinds();
        auto const & references = entity.references();
        if (step_is_drawn_model(kinds) && shows_shape(entity)) {
            waiting.push_back(number);
        } else if (relates_models(kinds) &&
                   std::any_of(references.begin(), references.end(),
                               [&](auto const & end) { return is_kept_shape(end.number); })) {
            waiting.push_back(number);
        }
    }
    std::set<int> placed;
    while (!waiting.empty()) {
        int const number = waiting.back();
        waiting.pop_back();
        auto const * entity = m_graph.find(number);
        if (entity == nullptr || !placed.insert(number).second) {
            continue;
        }
        if (relates_models(entity->kinds())) {
            for (auto const & end : entity->references()) {
                waiting.push_back(end.number);
            }
            continue;
        }
        auto const users = m_users.equal_range(number);
        for (auto user = users.first; user != users.second; ++user) {
            if (relates_models(m_graph.find(user->second.number)->kinds())) {
                waiting.push_back(user->second.number);
            }
        }
    }
    return placed;
}

bool stepPmiOutput::is_kept_shape(int number) const
{
    return m_graph.representations().count(number) > 0 && !gap_of(number);
}

// An image refers to a map, and that to a representation.
bool stepPmiOutput::shows_shape(stepPmiEntity const & model) const
{
    for (auto const & image : model.references()) {
        auto const * item = image.listed ? m_graph.find(image.number) : nullptr;
        for (std::size_t at = 0; item != nullptr && at < item->references().size(); ++at) {
            auto const * map = m_graph.find(item->references()[at].number);
            if (map != nullptr && map->text().starts_with("REPRESENTATION_MAP") &&
                std::any_of(map->references().begin(), map->references().end(),
                            [&](auto const & end) { return is_kept_shape(end.number); })) {
                return true;
            }
        }
    }
    return false;
}

// With it goes all that cannot be without it.
void stepPmiOutput::lose(int first, stepPmiLoss why)
{
    std::vector<int> waiting{first};
    while (!waiting.empty()) {
        int const number = waiting.back();
        waiting.pop_back();
        if (m_graph.find(number) == nullptr || !m_lost.emplace(number, why).second) {
            continue;
        }
        auto const held = m_graph.held_by(number);
        waiting.insert(waiting.end(), held.begin(), held.end());
        auto const users = m_users.equal_range(number);
        for (auto user = users.first; user != users.second; ++user) {
            // A group of nothing is none.
            if (!user->second.lists || --m_listed[user->second.number] == 0) {
                waiting.push_back(user->second.number);
            }
        }
    }
}

bool stepPmiOutput::may_lack(stepKinds const & holder, Reference const & reference) const
{
    return reference.listed && step_is_group(holder);
}

std::optional<stepPmiLoss> stepPmiOutput::gap_of(int number) const
{
    if (m_graph.geometry().count(number) > 0) {
        return m_targets.entity_of(m_source.shape_of(number)) == 0 ? std::optional(stepPmiLoss::geometry)
                                                                   : std::nullopt;
    }
    for (auto const * cut : {&m_graph.products(), &m_graph.representations()}) {
        if (auto const found = cut->find(number); found != cut->end()) {
            return product(found->second).shape == 0 ? std::optional(stepPmiLoss::product) : std::nullopt;
        }
    }
    return m_graph.find(number) == nullptr ? std::optional(stepPmiLoss::incomplete) : std::nullopt;
}

stepPmiTargets::Product stepPmiOutput::product(int definition) const
{
    auto const found = m_products.find(definition);
    return found == m_products.end() ? stepPmiTargets::Product()
                                     : found->second.value_or(stepPmiTargets::Product());
}

// What only lost items refer to, or only they need, would mean nothing.
void stepPmiOutput::keep_reachable()
{
    for (int const item : m_graph.items()) {
        keep(item);
    }
}

void stepPmiOutput::keep(int first)
{
    std::vector<int> waiting{first};
    while (!waiting.empty()) {
        int const number = waiting.back();
        waiting.pop_back();
        auto const * entity = m_graph.find(number);
        if (entity == nullptr || m_lost.count(number) > 0 || !m_kept.insert(number).second) {
            continue;
        }
        for (auto const & reference : entity->references()) {
            waiting.push_back(reference.number);
        }
        auto const users = m_users.equal_range(number);
        for (auto user = users.first; user != users.second; ++user) {
            if (belongs_to_kept(user->second.number)) {
                waiting.push_back(user->second.number);
            }
        }
    }
}

bool stepPmiOutput::belongs_to_kept(int link) const
{
    auto const subjects = m_graph.subjects_of(link);
    return std::any_of(subjects.begin(), subjects.end(), [&](int one) { return m_kept.count(one) > 0; });
}

std::optional<stepPmiLoss> stepPmiOutput::loss_of(int item) const
{
    auto const found = m_lost.find(item);
    return found == m_lost.end() ? std::nullopt : std::optional(found->second);
}

std::string stepPmiOutput::definitions(int first_number) const
{
    std::map<int, int> numbers;
    for (int const kept : m_kept) {
        numbers.emplace(kept, first_number + static_cast<int>(numbers.size()));
    }
    std::string text;
    for (auto const & [kept, number] : numbers) {
        text += "#" + std::to_string(number) + "=" + definition_of(*m_graph.find(kept), numbers) + ";\n";
    }
    return text;
}

std::string stepPmiOutput::definition_of(stepPmiEntity const & entity,
                                         std::map<int, int> const & numbers) const
{
    int named_representation = 0;
    auto const & references = entity.references();
    if (step_names_geometry(entity.kinds()) && references.size() > 2 &&
        m_graph.geometry().count(references[2].number) > 0) {
        named_representation =
            m_targets.representation_of(m_targets.entity_of(m_source.shape_of(references[2].number)));
    }
    std::vector<std::string> parts;
    bool comma_goes = false;
    for (auto const & token : step_tokens(entity.text())) {
        if (token.kind != stepToken::Kind::reference) {
            if (!comma_goes || token.text != ",") {
                parts.emplace_back(token.text);
            }
            comma_goes = false;
            continue;
        }
        auto const kept = numbers.find(token.number);
        int const number =
            kept != numbers.end() ? kept->second : target_of(token.number, named_representation);
        if (number != 0) {
            parts.push_back("#" + std::to_string(number));
        } else if (parts.back() == ",") {
            parts.pop_back();
        } else {
            comma_goes = true;
        }
    }
    return in_lines(parts);
}

int stepPmiOutput::target_of(int number, int named_representation) const
{
    if (m_graph.geometry().count(number) > 0) {
        return m_targets.entity_of(m_source.shape_of(number));
    }
    if (auto const found = m_graph.representations().find(number); found != m_graph.representations().end()) {
        return named_representation != 0 ? named_representation : product(found->second).representation;
    }
    auto const found = m_graph.products().find(number);
    if (found == m_graph.products().end()) {
        return 0;
    }
    auto const target = product(found->second);
    return found->first == found->second ? target.definition : target.shape;
}
