#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The definitions of the entities with these numbers, each from its equals sign on. The views are of the
// text.
std::map<int, std::string_view> step_definitions_of(std::set<int> const & numbers, std::string_view text);

// The parameters of a definition that is no complex one, each as it stands in the file.
std::vector<std::string> step_parameters(std::string_view definition);

// Which entities others refer to: numbers by number, in the order of the file.
using stepReferences = std::map<int, std::vector<int>>;

// Of the entities with these numbers, from the text of a file: Open CASCADE drops references to what is not
// there, to what it does not know, and from constructive solids to primitives.
stepReferences step_references_of(std::set<int> const & numbers, std::string_view text);
