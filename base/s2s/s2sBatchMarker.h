#pragma once

#include "ut/utString.h"

/// The line that frames the header of each translation's section in the text streams of a batch. It holds no
/// line end itself.
utString s2s_batch_marker();
