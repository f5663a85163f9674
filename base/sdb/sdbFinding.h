#pragma once

#include <optional>

#include "ut/utString.h"

/// What a finding means for the verdict.
enum sdbWeight : int {
    sdbWeightNote = 0,       ///< says something about the source; the output need not differ from it
    sdbWeightDifference = 1, ///< the output has it otherwise than the source
    sdbWeightLoss = 2        ///< the output lacks it
};

/// One thing that a user has to know about a source, or about an output beside its source.
struct sdbFinding {
    sdbWeight weight = sdbWeightNote;
    utString kind;                ///< English words with hyphens, such as "volume"
    utString part;                ///< name of the part; empty for none
    utString place;               ///< in the file or in space; empty for none
    std::optional<double> source; ///< what the source has: a count, or mm, mm2 or mm3, by the kind
    std::optional<double> output; ///< what the output has
    utString text;                ///< one line in the user's language that names all of this itself
};
