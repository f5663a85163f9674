#pragma once

#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>

// Divides closed edges whose curve is an ellipse that does not begin on its major axis. Open CASCADE writes
// such an edge to IGES turned by the parameter of its begin, so that it leaves its faces; halves are written
// right. Other edges stay what they are. Returns the number of parts that were changed.
int sdk_divide_turned_ellipses(sdkDocument & document, Message_ProgressRange const & range = {});
