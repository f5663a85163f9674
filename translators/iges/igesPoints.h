#pragma once

#include "sdk/sdkDocument.h"

class IGESData_IGESModel;
class Transfer_FinderProcess;

// Which attributes a file is to have.
struct igesPointAttributes {
    bool names = true;
    bool colours = true;
    bool levels = true;
};

// Gives the points of the document, those that bound no curve, their names, colours and levels in the model
// that the process has made of it, and tells the process which entity each of them has become. Open CASCADE
// writes them without all this; here they are found by their coordinates. The document has no assemblies any
// more. Call it when the toolkit has given levels to all other shapes.
void iges_describe_points(sdkDocument const & document, Handle(Transfer_FinderProcess) const & process,
                          Handle(IGESData_IGESModel) const & model, igesPointAttributes const & wanted);
