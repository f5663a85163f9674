#pragma once

#include <map>
#include <set>
#include <string_view>
#include <vector>

// Which entities others refer to: numbers by number, in the order of the file.
using stepReferences = std::map<int, std::vector<int>>;

// Of the entities with these numbers, from the text of a file: Open CASCADE drops references to what is not
// there, to what it does not know, and from constructive solids to primitives.
stepReferences step_references_of(std::set<int> const & numbers, std::string_view text);
