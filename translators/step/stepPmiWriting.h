#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"

#include <Standard_Handle.hxx>

#include <string>

class XSControl_WorkSession;

// What a writer adds to its model for the product and manufacturing information of its document.
struct stepPmiText {
    // For the end of the data section; may be empty.
    std::string definitions;
    // The edition of AP242 that has all its entities, as FILE_SCHEMA names it; empty when any will do.
    std::string schema;
};

// When the model is complete. Promises what is kept, adds a loss to the account for each item that is not,
// and tells the user the sums.
stepPmiText step_write_annotations(Handle(XSControl_WorkSession) const & session,
                                   sdkDocument const & document, sdkContext & context);
