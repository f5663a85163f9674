#include "sdk/sdkAccount.h"

#include <algorithm>
#include <utility>

bool sdkAccount::kept() const
{
    return std::any_of(m_held.begin(), m_held.end(), [](std::int64_t number) { return number > 0; });
}

void sdkAccount::add(sdkFinding finding)
{
    m_findings.push_back(std::move(finding));
}
