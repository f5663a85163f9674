#pragma once

#include "sdb/sdbFindings.h"
#include "sdb/sdbVerdict.h"
#include "ut/utString.h"

/// How a report puts what came of comparing an output with its source.

/// The heading of the findings: the verdict, or without one that there are findings.
utString sgl_verification_heading(sdbVerdict verdict);

/// One line, with what the finding means for the verdict.
utString sgl_finding_line(sdbFinding const & finding);

/// That so many more were found than the report lists.
utString sgl_findings_left_out_line(std::size_t number);
