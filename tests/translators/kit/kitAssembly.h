#pragma once

#include <string>
#include <vector>

/// The names of the components of the assembly that a STEP file holds, as a reader of the format sees them,
/// sorted; fails the test when it cannot be read or holds no assembly or several.
std::vector<std::string> kit_component_names(std::string const & step_file);

/// How many solids the components have between them.
int kit_solid_count(std::string const & step_file);
