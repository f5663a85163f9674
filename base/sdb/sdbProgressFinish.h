#pragma once

/// How a translation ended, as the record and the report of it say. The numbers are fixed.
enum sdbProgressFinish : int {
    sdbProgressCompleted = 0,
    sdbProgressCancelled = 1,
    sdbProgressFailed = 2,
    sdbProgressUnknown = 4,
};
