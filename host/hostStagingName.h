#pragma once

#include <string>

// True for a folder, and no link to one, that belongs to this user and has a name like the engine gives to
// its staging folders: nothing else is ever removed.
bool host_is_staging_folder(std::string const & path);
