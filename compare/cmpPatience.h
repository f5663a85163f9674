#pragma once

#include <chrono>
#include <optional>

#include "compare/cmpOptions.h"

/// How long a comparison may take; nothing for as long as it takes. Where the user has not said it, it grows
/// with the files, and is so long that only a reader that hangs needs more.
std::optional<std::chrono::milliseconds> cmp_patience(cmpOptions const & options);
