#pragma once

#include "sdk/sdkDocument.h"

#include <functional>
#include <map>
#include <string>

// Lies that leave numbers, volumes and centroids alone, or nearly so.
std::map<std::string, std::function<void(sdkDocument &)>> const & lies_finer();
