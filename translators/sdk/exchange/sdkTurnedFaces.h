#pragma once

#include "sdk/sdkDocument.h"

// Describes faces and shells that bound no solid and are turned round in the one way in which Open CASCADE
// writes the side to which they look among the entities of IGES for solid models: as shells that are not
// turned themselves, of faces that are. Without it such a face looks to the side of its surface in the file,
// and such a shell to that of its faces. A face becomes a shell of its own. Returns the number of parts that
// were changed.
int sdk_turn_faces_in_shells(sdkDocument & document);
