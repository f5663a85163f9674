#pragma once

/// What comparing an output with its source came to.
enum sdbVerdict : int {
    sdbVerdictNone = 0,       ///< nobody asked, or the user has cancelled
    sdbVerdictVerified = 1,   ///< the output holds what the source held
    sdbVerdictDiffers = 2,    ///< it holds something otherwise than the source
    sdbVerdictLosses = 3,     ///< it lacks something that the source held, or there is none because of that
    sdbVerdictNotVerified = 4 ///< the output could not be compared with its source, or there is none
};
