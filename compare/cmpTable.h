#pragma once

#include <string>

#include "compare/cmpReport.h"

class cmpTexts;

/// The report for people, at most 80 columns wide: the two files, what each holds, the parts that differ (or
/// `all`), the differences and, in one line, what it comes to. Without the last line when they could not be
/// compared.
std::string cmp_table(cmpReport const & report, bool all, cmpTexts const & texts);
