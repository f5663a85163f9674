#pragma once

#include "sdk/sdkDocument.h"

#include <string>

// Changes the first part of a document, or its first assembly, in the one way that the word names; "none" and
// words that are no lie about a document change nothing.
void lies_tell(std::string const & lie, sdkDocument & document);
