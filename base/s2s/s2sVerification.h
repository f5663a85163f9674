#pragma once

#include "sdb/sdbFindings.h"
#include "sdb/sdbVerdict.h"

/// What is known of an output beside its source, and of the source itself.
struct s2sVerification {
    sdbVerdict verdict = sdbVerdictNone;
    sdbFindings findings;

    bool empty() const { return verdict == sdbVerdictNone && findings.empty(); }
};
