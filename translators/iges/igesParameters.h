#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

// What stands in the parameter section for one entity, without an idea of what it means.
struct igesParameters {
    int directory = 0;                   // sequence number of the entity in the directory, as in D45
    int type = 0;                        // such as 126, the first parameter
    std::int64_t count = 0;              // of the parameters behind the type
    std::array<std::int64_t, 8> first{}; // of these, as whole numbers; 0 where they are none
    std::string_view bad; // a number among them that is none, such as NaN or 1.E400; valid in the call
};

// Calls back for each entity, in the order of the section. One pass over the text.
void iges_each_parameters(std::string_view text, std::function<void(igesParameters const &)> const & take);
