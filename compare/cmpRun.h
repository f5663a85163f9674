#pragma once

#include "compare/cmpOptions.h"
#include "compare/cmpReport.h"

class cmpInstallation;
class cmpTexts;

/// Compares the two files in a process of their own, which can do no harm to this one. Signals to end the
/// program end the comparison, and so does the time that it may take; the report then says so.
cmpReport cmp_compare(cmpOptions const & options, cmpInstallation const & installation,
                      cmpTexts const & texts);
