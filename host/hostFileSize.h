#pragma once

#include <cstdint>

// Allows no file that this process writes more than so many bytes; 0 for any number. Never more than the
// process was given from outside. Whoever writes beyond gets the error EFBIG; the signal that the system
// would end the process with is ignored from now on.
void host_limit_file_size(std::uint64_t bytes);
