#pragma once

/// The outcome of one translation.
enum s2sThreadStatus {
    s2sThreadNotEnded = 0,   ///< still running, or nothing has begun
    s2sThreadFileTooBig = 1, ///< the input needs more memory than a translation may have
    s2sThreadReadError = 2,
    s2sThreadWriteError = 3,
    s2sThreadCompleted = 4, ///< ran to its end; the number of entities says whether it produced anything
    s2sThreadCancelled = 6
};

/// The direction in which a file is being worked on.
enum s2sThreadReadWrite { s2sReadWriteReading = 0, s2sReadWriteWriting = 1 };
