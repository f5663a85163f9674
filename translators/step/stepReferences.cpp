#include "step/stepReferences.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace {

constexpr std::string_view white = " \t\r\n\f\v";

// Walks back from the keyword over white space and "=" to the number of its instance; 0 when there is none.
int number_before(std::string_view text, std::size_t keyword)
{
    auto const last_not_of = [text](std::string_view characters, std::size_t from) {
        return from == 0 ? std::string_view::npos : text.find_last_not_of(characters, from - 1);
    };
    auto const equals = last_not_of(white, keyword);
    if (equals == std::string_view::npos || text[equals] != '=') {
        return 0;
    }
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

void find_all(std::string_view text, std::string_view keyword, stepReferences & found)
{
    for (auto at = text.find(keyword); at != std::string_view::npos; at = text.find(keyword, at + 1)) {
        if (int const number = number_before(text, at); number > 0) {
            found.emplace(number, references_in(text.substr(at)));
        }
    }
}

} // namespace

stepReferences step_constructive_references(std::string_view text)
{
    stepReferences found;
    find_all(text, "CSG_SOLID", found);
    find_all(text, "BOOLEAN_RESULT", found);
    return found;
}
