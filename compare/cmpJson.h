#pragma once

#include <string>

#include "compare/cmpReport.h"

/// The report as one JSON object, with the end of its line.
std::string cmp_json(cmpReport const & report);

/// What is printed where there is no report: an object with "error".
std::string cmp_json_problem(std::string const & problem);
