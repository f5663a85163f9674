#include "sdb/sdbTranslatorLoadStatus.h"

itIterator<apPathName> sdbTranslatorLoadStatus::translator_files_failed_to_load() const
{
    if (m_failures.empty())
        return {};
    std::vector<apPathName> files;
    for (auto const & failure : m_failures)
        files.push_back(failure.file);
    return it_iterator_over(std::move(files));
}

void sdbTranslatorLoadStatus::add_file_failure(apPathName const & file, utString const & reason)
{
    m_failures.push_back({file, reason});
}

void sdbTranslatorLoadStatus::add_other_failure(utString const & reason)
{
    m_type = sdbTranslatorLoadFailed;
    m_other_failure = reason;
}
