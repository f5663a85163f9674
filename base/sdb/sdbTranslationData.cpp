#include "sdb/sdbTranslationData.h"

namespace {

template <class T>
T const * element(coPageArr<T> const & list, int index)
{
    return index >= 0 && index < list.count() ? &list[index] : nullptr;
}

} // namespace

sdbProgressFinish sdbTranslationData::status(int index) const
{
    auto const found = element(m_status, index);
    return found ? *found : sdbProgressUnknown;
}

sdbVerdict sdbTranslationData::verdict(int index) const
{
    auto const found = element(m_verdicts, index);
    return found ? *found : sdbVerdictNone;
}

sdbFindings const & sdbTranslationData::findings(int index) const
{
    static sdbFindings const none;
    auto const found = element(m_findings, index);
    return found ? *found : none;
}

utString const & sdbTranslationData::text(coPageArr<utString> const & list, int index)
{
    static utString const none = utString::make_invalid();
    auto const found = element(list, index);
    return found ? *found : none;
}

vmrTableInstance const & sdbTranslationData::table(Side const & side, int index)
{
    static vmrTableInstance const none;
    auto const found = element(side.tables, index);
    return found ? *found : none;
}
