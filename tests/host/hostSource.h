#pragma once

#include "kit/kitTempFolder.h"
#include "sdk/sdkDocument.h"

#include <functional>
#include <string>

// A STEP file in the folder with the names, colours and layers of a document, made by the toolkit alone.
std::string host_write_source(kitTempFolder const & folder, std::function<void(sdkDocument &)> const & fill);
