#include "step/stepPmiGraph.h"

#include <algorithm>
#include <utility>

stepPmiEntity::stepPmiEntity(std::string definition)
{
    auto const tokens = step_tokens(definition);
    // The parameters of a complex entity stand in a bracket more.
    int const parameters = !tokens.empty() && tokens.front().text == "(" ? 2 : 1;
    for (auto const & token : tokens) {
        m_text += token.text;
        if (token.kind == stepToken::Kind::reference) {
            m_references.push_back({token.number, token.depth > parameters});
        }
    }
}

std::vector<std::string> stepPmiEntity::strings() const
{
    std::vector<std::string> strings;
    for (auto const & token : step_tokens(m_text)) {
        if (token.kind == stepToken::Kind::string) {
            strings.emplace_back(token.text.substr(1, token.text.size() - 2));
        }
    }
    return strings;
}

// What is needed of the whole file while the graph is cut out of it.
struct stepPmiGraph::Gathering {
    struct Link {
        int number;
        stepPmiLink const * rule;
        stepPmiEntity entity;
    };

    Gathering(stepPmiGraph & of, std::string_view text, Encode const & encoder)
        : graph(of), definitions(text), encode(encoder)
    {
    }

    void run()
    {
        find_shapes();
        std::vector<int> found;
        for (auto const & [number, definition] : definitions.all()) {
            auto const kinds = step_kinds(definition);
            if (step_pmi_item(kinds) != nullptr) {
                found.push_back(number);
            } else if (auto const * rule = step_pmi_link(kinds)) {
                links.push_back({number, rule, entity_of(definition)});
                for (auto const & reference : links.back().entity.references()) {
                    links_of.emplace(reference.number, links.size() - 1);
                }
            }
        }
        for (int const number : found) {
            graph.m_items.push_back(number);
            add(number);
        }
        for (int const number : graph.m_geometry) {
            graph.m_entities.erase(number);
        }
    }

    stepPmiEntity entity_of(std::string_view definition) const { return stepPmiEntity(encode(definition)); }

    // The representations that are shapes of products, or stand for the same shape.
    void find_shapes()
    {
        std::vector<std::pair<int, int>> related;
        for (auto const & [number, definition] : definitions.all()) {
            bool const shown = definition.starts_with("SHAPE_DEFINITION_REPRESENTATION");
            if (!shown && !definition.starts_with("SHAPE_REPRESENTATION_RELATIONSHIP")) {
                continue;
            }
            auto const references = stepPmiEntity(std::string(definition)).references();
            if (references.size() < 2) {
                continue;
            }
            if (!shown) {
                related.emplace_back(references[0].number, references[1].number);
            } else if (int const product = product_of(references[0].number); product != 0) {
                graph.m_representations.emplace(references[1].number, product);
            }
        }
        for (bool grown = true; grown;) {
            grown = false;
            for (auto const & [one, other] : related) {
                grown = relate(one, other) || relate(other, one) || grown;
            }
        }
    }

    bool relate(int known, int other)
    {
        auto const found = graph.m_representations.find(known);
        return found != graph.m_representations.end() &&
               graph.m_representations.emplace(other, found->second).second;
    }

    // The product definition that this is or defines the shape of; 0 when there is none.
    int product_of(int number) const
    {
        auto const definition = definitions.of(number);
        if (!definition.starts_with("PRODUCT_DEFINITION_SHAPE")) {
            return definition.starts_with("PRODUCT_DEFINITION(") ||
                           definition.starts_with("PRODUCT_DEFINITION_WITH_ASSOCIATED_DOCUMENTS")
                       ? number
                       : 0;
        }
        auto const references = stepPmiEntity(std::string(definition)).references();
        return references.empty() ? 0 : product_of(references.back().number);
    }

    bool belongs(Link const & link) const
    {
        auto const & references = link.entity.references();
        auto const in = [&](std::size_t at) {
            return at < references.size() && graph.find(references[at].number) != nullptr;
        };
        switch (link.rule->subject) {
        case stepPmiLink::Subject::first:
            return in(0);
        case stepPmiLink::Subject::last:
            return !references.empty() && in(references.size() - 1);
        case stepPmiLink::Subject::first_two:
            return in(0) || in(1);
        case stepPmiLink::Subject::both:
            return in(0) && in(1);
        case stepPmiLink::Subject::any:
        case stepPmiLink::Subject::not_second:
        case stepPmiLink::Subject::listed:
            break;
        }
        for (std::size_t at = 0; at < references.size(); ++at) {
            if (in(at) && (link.rule->subject == stepPmiLink::Subject::any ||
                           (link.rule->subject == stepPmiLink::Subject::not_second && at != 1) ||
                           (references[at].listed && is_grouped(references[at].number)))) {
                return true;
            }
        }
        return false;
    }

    bool is_grouped(int number) const
    {
        auto const kinds = step_kinds(definitions.of(number));
        return step_pmi_item(kinds) != nullptr || step_is_group(kinds);
    }

    // Adds the entity, all below it, and what belongs to any of them. They are gathered first: chains may be
    // longer than the stack is deep.
    void add(int first)
    {
        std::vector<int> waiting{first};
        while (!waiting.empty()) {
            int const number = waiting.back();
            waiting.pop_back();
            auto const definition = definitions.of(number);
            if (definition.empty() || graph.find(number) != nullptr || is_cut(number, definition)) {
                continue;
            }
            auto const & entity = graph.m_entities.emplace(number, entity_of(definition)).first->second;
            auto const kinds = entity.kinds();
            auto const & references = entity.references();
            bool const named = step_names_geometry(kinds) && references.size() > 2 &&
                               graph.m_representations.count(references[1].number) > 0;
            for (std::size_t at = 0; at < references.size(); ++at) {
                if (named && at >= 2) {
                    graph.m_geometry.insert(references[at].number);
                } else if (!references[at].listed || !step_is_group(kinds) ||
                           is_shown(kinds, references[at].number)) {
                    waiting.push_back(references[at].number);
                }
            }
            auto const near = links_of.equal_range(number);
            for (auto link = near.first; link != near.second; ++link) {
                if (belongs(links[link->second])) {
                    waiting.push_back(links[link->second].number);
                }
            }
        }
    }

    // Drawn models have colours of faces among what they show, and lists of what is hidden have all else.
    bool is_shown(stepKinds const & group, int number) const
    {
        auto const kinds = step_kinds(definitions.of(number));
        return is_grouped(number) || (group.front() != "INVISIBILITY" && !step_is_plain_style(kinds));
    }

    bool is_cut(int number, std::string_view definition)
    {
        auto const kinds = step_kinds(definition);
        if (graph.m_representations.count(number) > 0) {
            return true;
        }
        if (step_is_topology(kinds)) {
            graph.m_geometry.insert(number);
        } else if (step_is_product(kinds)) {
            graph.m_products.emplace(number, product_of(number));
        }
        return graph.m_geometry.count(number) > 0 || graph.m_products.count(number) > 0;
    }

    stepPmiGraph & graph;
    stepDefinitions definitions;
    Encode const & encode;
    std::vector<Link> links;
    std::multimap<int, std::size_t> links_of; // by what they refer to
};

stepPmiGraph::stepPmiGraph(std::string_view text, Encode const & encode)
{
    Gathering(*this, text, encode).run();
}

stepPmiEntity const * stepPmiGraph::find(int number) const
{
    auto const found = m_entities.find(number);
    return found == m_entities.end() ? nullptr : &found->second;
}

std::set<int> stepPmiGraph::product_definitions() const
{
    std::set<int> definitions;
    for (auto const & [entity, definition] : m_products) {
        definitions.insert(definition);
    }
    for (auto const & [representation, definition] : m_representations) {
        definitions.insert(definition);
    }
    definitions.erase(0);
    return definitions;
}

stepKinds stepPmiGraph::kinds_of(int number) const
{
    auto const * entity = find(number);
    return entity == nullptr ? stepKinds() : entity->kinds();
}

std::vector<int> stepPmiGraph::subjects_of(int link) const
{
    auto const * entity = find(link);
    auto const * rule = entity == nullptr ? nullptr : step_pmi_link(entity->kinds());
    if (rule == nullptr) {
        return {};
    }
    auto const & references = entity->references();
    std::vector<int> subjects;
    for (std::size_t at = 0; at < references.size(); ++at) {
        using enum stepPmiLink::Subject;
        auto const subject = rule->subject;
        bool const taken = subject == first        ? at == 0
                           : subject == last       ? at + 1 == references.size()
                           : subject == first_two  ? at < 2
                           : subject == both       ? at < 2
                           : subject == not_second ? at != 1
                           : subject == listed     ? references[at].listed
                                                   : true;
        if (taken && find(references[at].number) != nullptr) {
            subjects.push_back(references[at].number);
        }
    }
    return subjects;
}

std::vector<int> stepPmiGraph::held_by(int link) const
{
    auto const * entity = find(link);
    auto const * rule = entity == nullptr ? nullptr : step_pmi_link(entity->kinds());
    if (rule == nullptr) {
        return {};
    }
    auto const & references = entity->references();
    std::vector<int> held;
    for (std::size_t at = 0; at < references.size(); ++at) {
        int const number = references[at].number;
        auto const kinds = kinds_of(number);
        bool taken = false;
        switch (rule->holds) {
        case stepPmiLink::Holds::nothing:
            break;
        case stepPmiLink::Holds::first:
            taken = at == 0;
            break;
        case stepPmiLink::Holds::first_two:
            taken = at < 2;
            break;
        case stepPmiLink::Holds::first_and_datum:
            taken = at == 0 || (at == 1 && step_is_datum(kinds));
            break;
        case stepPmiLink::Holds::last:
            taken = at + 1 == references.size();
            break;
        case stepPmiLink::Holds::from_third_on:
            taken = at >= 2;
            break;
        case stepPmiLink::Holds::tolerances:
            taken = step_pmi_item(kinds) != nullptr;
            break;
        case stepPmiLink::Holds::shown:
            taken = references[at].listed;
            break;
        case stepPmiLink::Holds::model:
            taken = step_is_drawn_model(kinds);
            break;
        }
        if (taken && find(number) != nullptr) {
            held.push_back(number);
        }
    }
    return held;
}
