#pragma once

#include <string>

// Tries something that no translation needs. Gives the error of the system, or 0 when it was possible.
int prowl_do(std::string const & deed, std::string const & target);
