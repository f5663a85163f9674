#pragma once

/// What a record of a translation holds.
enum sdbTranslationType : int {
    sdbTranslationSingle = 1, ///< one input and one output
    sdbTranslationMerge = 2,  ///< several inputs and one output
    sdbTranslationBatch = 3,  ///< independent pairs of input and output
};
