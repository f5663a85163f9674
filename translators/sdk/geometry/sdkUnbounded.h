#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"

#include <string>

// Takes faces and loose curves that go on without end out of the document: the format has no place for them,
// and Open CASCADE writes nothing. Each becomes a loss in the account and counts as failed.
// An unbounded plane of an IGES file is no more than a place for other entities. Returns how many were taken
// out. Without `curves` they stay, for formats that hold none and say so.
std::int64_t sdk_drop_unbounded(sdkDocument & document, std::string const & format, sdkContext & context,
                                bool curves = true);
