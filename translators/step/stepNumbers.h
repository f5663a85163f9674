#pragma once

#include <string>
#include <string_view>
#include <vector>

// A parameter that should be a number and is none, such as NaN, or too large to reckon with, such as 1.E400.
struct stepBadNumber {
    int entity = 0; // the number of the instance that has it; 0 when it stands in none
    std::string text;
};

// Those of a file, in its order: what stands in strings and comments and the names of entities and
// enumerations are none. One pass over the text.
std::vector<stepBadNumber> step_bad_numbers(std::string_view text);
