#pragma once

#include "ut/utString.h"

/// What kind of build the product file declares.
enum sglBuildType {
    sglBuildFull = 0,
    sglBuildAlpha = 1,
    sglBuildBeta = 2,
    sglBuildProject = 3,
    sglBuildReleaseCandidate = 4,
    sglBuildNoStatusFile = 5,
    sglBuildStatusFileError = 6
};

/// The kind of build of this process and its texts.
class sglReleaseStatus {
public:
    static int initialise(sglBuildType type); ///< returns 0, changing nothing, for a value out of range
    static sglBuildType build_type();

    /// In the language of the first use: each text is fetched once and kept.
    static utString release_string();
    static utString splash_string(); ///< empty for a full release
};
