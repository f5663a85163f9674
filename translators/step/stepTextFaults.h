#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

// A parameter that should be a number and is none, such as NaN, or too large to reckon with, such as 1.E400.
struct stepBadNumber {
    int entity = 0; // the number of the instance that has it; 0 when it stands in none
    std::string text;
};

// What the text of a file shows and the model that is made of it does not.
struct stepTextFaults {
    std::vector<stepBadNumber> numbers;
    std::set<int> empty_lists; // instances that have a list without anything in it
};

// Of a file: what stands in strings and comments and the names of entities and enumerations are no numbers.
// One pass over the text.
stepTextFaults step_text_faults(std::string_view text);
