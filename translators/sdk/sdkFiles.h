#pragma once

#include "sdk/sdkResult.h"

#include <functional>
#include <string>
#include <string_view>

// The name of the file without folders and without its last extension.
std::string sdk_file_stem(std::string const & path);

// The name of the file without folders.
std::string sdk_file_name(std::string const & path);

// Completed when a writer really left a file that is not empty; `shown` is the name for the user.
sdkResult sdk_check_written(std::string const & path, std::string const & shown);

// True when the file can be read and its whole content passes: for writers that look at what they have
// written.
bool sdk_file_passes(std::string const & path, std::function<bool(std::string_view)> const & is_whole);

// A write error for an errno that writing gave, with what to do about it; `shown` is the name for the user.
sdkResult sdk_not_written(std::string const & shown, int error_number);

// The system's text for an errno, such as "No space left on device".
std::string sdk_system_text(int error_number);
