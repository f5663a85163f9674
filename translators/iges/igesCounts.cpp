#include "iges/igesCounts.h"

#include <algorithm>

namespace {

struct Place {
    int type;
    int parameter; // from 1
};

// Where kinds of entities that shapes are made of have their counts, or an upper index in place of one.
constexpr Place places[] = {{102, 1}, {106, 2}, {112, 4}, {126, 1}, {128, 1}, {128, 2}, {141, 4},
                            {143, 3}, {144, 2}, {144, 3}, {180, 1}, {184, 1}, {186, 3}, {308, 3},
                            {402, 1}, {502, 1}, {504, 1}, {508, 1}, {510, 2}, {514, 1}};

constexpr std::int64_t largest_degree = 100;

} // namespace

std::optional<std::int64_t> iges_lying_count(igesParameters const & parameters)
{
    auto const at = [&](int parameter) { return parameters.first[static_cast<std::size_t>(parameter - 1)]; };
    for (auto const & place : places) {
        if (place.type == parameters.type &&
            (at(place.parameter) < 0 || at(place.parameter) > parameters.count)) {
            return at(place.parameter);
        }
    }
    // The library has no lists for what has none, and asks them all the same.
    constexpr int first_of_solids = 502;
    constexpr int last_of_solids = 514;
    if (parameters.type >= first_of_solids && parameters.type <= last_of_solids &&
        at(parameters.type == 510 ? 2 : 1) == 0) {
        return 0;
    }
    if (parameters.type == 126 && (at(2) < 0 || at(2) > largest_degree)) {
        return at(2);
    }
    if (parameters.type == 128) {
        for (int const parameter : {3, 4}) {
            if (at(parameter) < 0 || at(parameter) > largest_degree) {
                return at(parameter);
            }
        }
        if ((at(1) + 1) * (at(2) + 1) > parameters.count) {
            return (at(1) + 1) * (at(2) + 1);
        }
    }
    return std::nullopt;
}
