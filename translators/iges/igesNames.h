#pragma once

#include "sdk/sdkDocument.h"

#include <Standard_Handle.hxx>

#include <cstdint>
#include <string>

class IGESData_IGESModel;

// Turns the names of the entities, which are in the code page, into UTF-8, as which they are put into a
// document. A name that is not in the code page is taken for ISO 8859-1, which fits any bytes; one that could
// not be read becomes an empty one.
void iges_decode_names(Handle(IGESData_IGESModel) const & model, std::string const & code_page);

// Puts an underscore for each character of a name in the document that is not ASCII. Returns the number of
// names that were changed.
std::int64_t iges_make_names_ascii(sdkDocument & document);
