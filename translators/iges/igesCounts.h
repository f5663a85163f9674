#pragma once

#include "iges/igesParameters.h"

#include <cstdint>
#include <optional>

// A count among the parameters of an entity that cannot be true, for the entity has fewer parameters:
// Open CASCADE takes memory for as many as it says. For parts of solids neither can 0. Nothing where there is
// none.
std::optional<std::int64_t> iges_lying_count(igesParameters const & parameters);
