#pragma once

#include "sdk/sdkResult.h"

#include <cstddef>
#include <cstdint>
#include <string>

// Up to `bytes` bytes from the beginning of a file. A file that cannot be read gives a text in `failure`.
std::string sdk_file_begin(std::string const & path, std::size_t bytes, sdkText & failure);

// The name of the file without folders and without its last extension.
std::string sdk_file_stem(std::string const & path);

// The name of the file without folders.
std::string sdk_file_name(std::string const & path);

// Checks that a writer really left a file: completed when it is there and not empty. `shown` is the name for
// the user; `error_number` is the errno that the writer saw, 0 when it saw none.
sdkResult sdk_check_written(std::string const & path, std::string const & shown, int error_number);

// The system's text for an errno, such as "No space left on device".
std::string sdk_system_text(int error_number);
