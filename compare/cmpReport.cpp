#include "compare/cmpReport.h"

#include <algorithm>

std::size_t cmpReport::differences() const
{
    return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(), cmp_is_difference));
}

int cmpReport::exit_status() const
{
    return verdict == sdbVerdictVerified ? 0 : verdict == sdbVerdictDiffers ? 1 : 2;
}
