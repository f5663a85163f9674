#pragma once

#include "sdk/sdkResult.h"

#include <functional>
#include <string>

// The file at which a job is when something goes wrong.
struct hostSubject {
    std::string file;
    bool writing = false;
};

// Does the work and turns whatever readers, writers and libraries throw into a result that names the file.
sdkResult host_guard(std::function<sdkResult()> const & work, std::function<hostSubject()> const & subject);

// Names the file and how much memory is allowed.
sdkResult host_out_of_memory(std::string const & file);
