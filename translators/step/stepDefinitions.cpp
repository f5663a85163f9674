#include "step/stepDefinitions.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view white = " \t\r\n\f\v";

std::size_t end_of_string(std::string_view text, std::size_t quote)
{
    return std::min(text.find('\'', quote + 1), text.size() - 1);
}

std::size_t end_of_comment(std::string_view text, std::size_t begin)
{
    auto const end = text.find("*/", begin + 2);
    return end == std::string_view::npos ? text.size() - 1 : end + 1;
}

// Where the statement ends that begins there; the size of the text when it does not.
std::size_t end_of_statement(std::string_view text, std::size_t at)
{
    for (; at < text.size() && text[at] != ';'; ++at) {
        if (text[at] == '\'') {
            at = end_of_string(text, at);
        } else if (text.substr(at, 2) == "/*") {
            at = end_of_comment(text, at);
        }
    }
    return at;
}

std::string_view without_white(std::string_view text)
{
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(white), text.size()));
        if (!text.starts_with("/*")) {
            return text;
        }
        text.remove_prefix(end_of_comment(text, 0) + 1);
    }
}

} // namespace

std::vector<stepToken> step_tokens(std::string_view text)
{
    std::vector<stepToken> tokens;
    int depth = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        auto const add = [&](stepToken::Kind kind, std::size_t last) {
            tokens.push_back({kind, text.substr(at, last - at + 1), 0, depth});
            at = last;
        };
        char const character = text[at];
        if (white.find(character) != std::string_view::npos) {
            continue;
        }
        if (text.substr(at, 2) == "/*") {
            at = end_of_comment(text, at);
        } else if (character == '\'' || character == '"') {
            auto const end = character == '"' ? std::min(text.find('"', at + 1), text.size() - 1)
                                              : end_of_string(text, at);
            add(stepToken::Kind::string, end);
        } else if (character == '(' || character == ')' || character == ',') {
            depth -= character == ')' ? 1 : 0;
            add(stepToken::Kind::mark, at);
            depth += character == '(' ? 1 : 0;
        } else {
            auto const end = std::min(text.find_first_of("(),'\"/ \t\r\n\f\v", at + 1), text.size());
            add(character == '#' ? stepToken::Kind::reference : stepToken::Kind::word, end - 1);
            if (character == '#') {
                auto const digits = tokens.back().text.substr(1);
                std::from_chars(digits.data(), digits.data() + digits.size(), tokens.back().number);
            }
        }
    }
    return tokens;
}

std::vector<std::string_view> step_kinds(std::string_view definition)
{
    definition = without_white(definition);
    if (!definition.starts_with('(')) {
        return {definition.substr(0, definition.find_first_of("( \t\r\n"))};
    }
    std::vector<std::string_view> kinds;
    for (auto const & token : step_tokens(definition)) {
        if (token.kind == stepToken::Kind::word && token.depth == 1) {
            kinds.push_back(token.text);
        }
    }
    return kinds;
}

stepDefinitions::stepDefinitions(std::string_view text)
{
    for (std::size_t begin = 0; begin < text.size();) {
        auto const end = end_of_statement(text, begin);
        auto const statement = without_white(text.substr(begin, end - begin));
        begin = end + 1;
        auto const equals = statement.starts_with('#') ? statement.find('=') : std::string_view::npos;
        if (equals != std::string_view::npos) {
            int number = 0;
            std::from_chars(statement.data() + 1, statement.data() + equals, number);
            m_all.emplace_back(number, without_white(statement.substr(equals + 1)));
        }
    }
    std::stable_sort(m_all.begin(), m_all.end(),
                     [](auto const & one, auto const & other) { return one.first < other.first; });
}

std::string_view stepDefinitions::of(int number) const
{
    auto const found = std::lower_bound(m_all.begin(), m_all.end(), number,
                                        [](auto const & one, int wanted) { return one.first < wanted; });
    return found == m_all.end() || found->first != number ? std::string_view() : found->second;
}
