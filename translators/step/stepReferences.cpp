#include "step/stepReferences.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view white = " \t\r\n\f\v";

// The number of the instance whose definition begins with this equals sign; 0 when it begins none.
int number_before(std::string_view text, std::size_t equals)
{
    auto const last_not_of = [text](std::string_view characters, std::size_t from) {
        return from == 0 ? std::string_view::npos : text.find_last_not_of(characters, from - 1);
    };
    auto const digit = last_not_of(white, equals);
    if (digit == std::string_view::npos) {
        return 0;
    }
    auto const mark = last_not_of("0123456789", digit + 1);
    if (mark == std::string_view::npos || text[mark] != '#') {
        return 0;
    }
    int number = 0;
    std::from_chars(text.data() + mark + 1, text.data() + digit + 1, number);
    return number;
}

// The references up to the end of the instance; what stands in strings and comments is none.
std::vector<int> references_in(std::string_view text)
{
    std::vector<int> references;
    for (std::size_t at = 0; at < text.size() && text[at] != ';'; ++at) {
        if (text[at] == '\'') {
            at = std::min(text.find('\'', at + 1), text.size());
        } else if (text.substr(at).starts_with("/*")) {
            at = std::min(text.find("*/", at + 2), text.size() - 1) + 1;
        } else if (text[at] == '#') {
            int number = 0;
            std::from_chars(text.data() + at + 1, text.data() + text.size(), number);
            references.push_back(number);
        }
    }
    return references;
}

} // namespace

stepReferences step_references_of(std::set<int> const & numbers, std::string_view text)
{
    stepReferences found;
    if (numbers.empty()) {
        return found;
    }
    for (auto at = text.find('='); at != std::string_view::npos; at = text.find('=', at + 1)) {
        if (int const number = number_before(text, at); numbers.count(number) > 0) {
            found.emplace(number, references_in(text.substr(at)));
        }
    }
    return found;
}
