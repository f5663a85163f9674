#pragma once

#include "sdk/sdkContext.h"
#include "sdk/sdkDocument.h"

class STEPCAFControl_Reader;
class stepPmiSource;

// Compares the volumes, areas and centroids that the file states with those of what arrived, and adds to the
// account what differs, and how many agree. Without the option stepReadValidation the document only learns
// that there were any, so that writers can say what is lost. Call it when the document is as it is to be but
// for flattening and filtering. Properties of annotations belong to these, whose source may be null.
void step_check_validation(STEPCAFControl_Reader const & reader, stepPmiSource const * annotations,
                           sdkDocument const & document, sdkContext & context);
