#include "s2s/s2sBatchMarker.h"

utString s2s_batch_marker()
{
    return "-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-=-";
}
