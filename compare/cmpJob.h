#pragma once

#include <optional>
#include <string>

#include "compare/cmpOptions.h"
#include "compare/cmpReport.h"

class cmpInstallation;
class cmpTexts;

/// The job of docs/host-protocol.md for a comparison, as one line. Nothing, with the reason in
/// `report.problem`, when a file, a format or an option is no good; otherwise the sides of the report have
/// file and format.
std::optional<std::string> cmp_make_job(cmpOptions const & options, cmpInstallation const & installation,
                                        cmpTexts const & texts, cmpReport & report);
