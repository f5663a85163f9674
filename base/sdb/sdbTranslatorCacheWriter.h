#pragma once

#include "sdb/sdbTranslatorDlls.h"
#include "sdb/sdbTranslatorLoadStatus.h"
#include "ut/utString.h"

class apIStringEncoding;

/// Writes the cache file of the two catalogues, which sdbTranslatorDllsFactory reads.
class sdbTranslatorCacheWriter {
public:
    /// Does the whole work. The two catalogues must come from one factory call. `error` becomes 0 when the
    /// file was written and 1 when not; then `status` has the reason, and an old file is still there.
    sdbTranslatorCacheWriter(utString const & path, sdbTranslatorDlls const & input,
                             sdbTranslatorDlls const & output, apIStringEncoding const * encoding,
                             int & error, sdbTranslatorLoadStatus & status);
};
