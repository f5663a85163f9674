#pragma once

#include "sdk/sdkModule.h"

#include <memory>

// A format of triangles only, of which the writer moves one corner when it is told to lie.
std::unique_ptr<sdkReader> lies_facets_reader(sdkContext & context);
std::unique_ptr<sdkWriter> lies_facets_writer(sdkContext & context);
