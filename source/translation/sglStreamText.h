#pragma once

#include "s2s/s2sThreadStatus.h"
#include "sdb/sdbProgressFinish.h"
#include "ut/utString.h"

/// Takes the next translation's own text out of the text of a batch stream: what stands behind its header and
/// before the next marker, which stays, or before the end. Line ends at its beginning are dropped.
utString sgl_cut_batch_section(utString & text);

/// The text of a stream as a record keeps it: the lines end as reports take them apart, with a carriage
/// return and a line feed.
utString sgl_record_text(utString const & text);

/// How a translation of a batch ended, as its record says.
sdbProgressFinish sgl_finish_of(s2sThreadStatus status);
