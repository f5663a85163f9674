#pragma once

#include <string>

/// Whether the path is that of the user's home. One that is missing is not made: a user without a home is to
/// have none, and root could make it all the way down.
bool ap_is_home(std::string const & path);
