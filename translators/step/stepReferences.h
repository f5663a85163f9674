#pragma once

#include <map>
#include <string_view>
#include <vector>

// Which entities the constructive solids of a file refer to, by number and in the order of the file: of each
// CSG_SOLID its expression, of each BOOLEAN_RESULT its two operands. Open CASCADE drops these references
// where they lead to primitives, so they are taken from the text.
using stepReferences = std::map<int, std::vector<int>>;

stepReferences step_constructive_references(std::string_view text);
