#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"

#include <string>

// Takes faces and loose curves that go on without end out of the document: the format has no place for them,
// and Open CASCADE writes nothing. Each becomes a loss in the account and counts as failed. Planes may stay
// for formats that hold them. Returns how many were taken out.
std::int64_t sdk_drop_unbounded(sdkDocument & document, std::string const & format, bool keep_planes,
                                sdkContext & context);
