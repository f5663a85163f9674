#include "step/stepPmiContent.h"

#include "step/stepTextDecoding.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>

namespace {

constexpr std::size_t long_text = 4096;

// Entities may share others in such a way that a short file tells an endless story.
constexpr std::size_t deepest = 200;
constexpr std::size_t longest = 128 * 1024 * 1024;

std::string shortened(std::string const & text)
{
    if (text.size() <= long_text) {
        return text;
    }
    std::uint64_t sum = 0xcbf29ce484222325;
    for (unsigned char const byte : text) {
        sum = (sum ^ byte) * 0x100000001b3;
    }
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(sum));
    return std::to_string(text.size()) + ":" + digits;
}

std::string name_of(stepPmiEntity const & entity)
{
    auto const strings = entity.strings();
    auto const last = strings.empty() ? strings.begin() : std::prev(strings.end());
    auto const first = step_is_datum(entity.kinds()) ? last : strings.begin();
    auto const named = std::find_if(first, strings.end(), [](auto const & text) { return !text.empty(); });
    return named == strings.end() ? std::string() : step_decoded(*named);
}

// Where an entity holds more than what belongs to the item that is asked of.
std::string brief(stepPmiEntity const & entity)
{
    std::string text;
    for (auto const & kind : entity.kinds()) {
        text += kind;
        text += ' ';
    }
    auto const strings = entity.strings();
    return text + (strings.empty() ? "" : strings.front());
}

} // namespace

stepPmiContents::stepPmiContents(stepPmiGraph const & graph) : m_graph(graph)
{
    for (auto const & [number, entity] : graph.entities()) {
        for (int const subject : graph.subjects_of(number)) {
            m_links.emplace(subject, number);
        }
    }
}

stepPmiItemContent stepPmiContents::of(int number)
{
    auto const & entity = *m_graph.find(number);
    stepPmiItemContent item{step_pmi_item(entity.kinds()), name_of(entity), {}, {}};
    item.text = shortened(describe(number, item));
    std::sort(item.geometry.begin(), item.geometry.end());
    item.geometry.erase(std::unique(item.geometry.begin(), item.geometry.end()), item.geometry.end());
    return item;
}

std::string stepPmiContents::describe(int number, stepPmiItemContent & item)
{
    if (m_graph.geometry().count(number) > 0) {
        item.geometry.push_back(number);
        return "<geometry>";
    }
    if (m_graph.representations().count(number) > 0) {
        return "<shape>";
    }
    if (m_graph.products().count(number) > 0) {
        return "<product>";
    }
    auto const * entity = m_graph.find(number);
    if (entity == nullptr) {
        return "<nothing>";
    }
    if (!m_open.empty() && step_is_group(entity->kinds())) {
        return brief(*entity);
    }
    if (m_open.size() >= deepest || m_length > longest || !m_open.insert(number).second) {
        return "<again>";
    }
    std::string text;
    describe_entity(number, *entity, text, item);
    m_open.erase(number);
    m_length += text.size();
    return text;
}

void stepPmiContents::describe_entity(int number, stepPmiEntity const & entity, std::string & text,
                                      stepPmiItemContent & item)
{
    for (auto const & token : step_tokens(entity.text())) {
        if (token.kind == stepToken::Kind::reference) {
            text += describe(token.number, item);
        } else {
            text += token.text;
        }
    }
    for (auto const & link : links_of(number, item)) {
        text += "+" + link;
    }
}

std::vector<std::string> stepPmiContents::links_of(int number, stepPmiItemContent & item)
{
    std::vector<std::string> told;
    auto const links = m_links.equal_range(number);
    for (auto link = links.first; link != links.second; ++link) {
        auto const & entity = *m_graph.find(link->second);
        auto const kinds = entity.kinds();
        if (step_is_group(kinds)) {
            told.push_back(brief(entity) + shown_by(link->second));
            continue;
        }
        // A part of something does not say what that is, but a datum says of what it is the datum. What is
        // drawn says what it shows, and not the other way round.
        auto const subject = step_pmi_link(kinds)->subject;
        bool const one_way =
            subject == stepPmiLink::Subject::first_two || subject == stepPmiLink::Subject::not_second;
        auto const held = m_graph.held_by(link->second);
        bool const away = one_way && std::find(held.begin(), held.end(), number) == held.end();
        if (!away && m_open.count(link->second) == 0) {
            told.push_back(describe(link->second, item));
        }
    }
    std::sort(told.begin(), told.end());
    return told;
}

// The dimensions and so on that a group of annotations stands for.
std::string stepPmiContents::shown_by(int group) const
{
    std::vector<std::string> shown;
    auto const links = m_links.equal_range(group);
    for (auto link = links.first; link != links.second; ++link) {
        auto const & entity = *m_graph.find(link->second);
        auto const * first =
            entity.references().empty() ? nullptr : m_graph.find(entity.references().front().number);
        if (step_pmi_link(entity.kinds())->holds == stepPmiLink::Holds::from_third_on && first != nullptr) {
            shown.push_back(" shows " + brief(*first));
        }
    }
    std::sort(shown.begin(), shown.end());
    std::string text;
    for (auto const & one : shown) {
        text += one;
    }
    return text;
}
