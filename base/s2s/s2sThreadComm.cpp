#include "s2s/s2sThreadComm.h"

#include <algorithm>
#include <utility>

namespace {

utString const no_file;

} // namespace

s2sThreadComm::s2sThreadComm(apISynchOperations const * operations)
    : m_start(operations), m_current_file(&no_file)
{
}

void s2sThreadComm::reset()
{
    std::lock_guard const lock(m_mutex);
    m_wake_up.clear();
    m_current_file = &no_file;
    m_files.clear();
    m_direction = s2sReadWriteReading;
    m_progress = 0;
    m_died = false;
    m_termination = false;
    m_details.clear();
}

void s2sThreadComm::currentFile(utString const & file, s2sThreadReadWrite direction)
{
    std::lock_guard const lock(m_mutex);
    m_current_file = &*m_files.insert(file).first;
    m_direction = direction;
}

utString const & s2sThreadComm::currentFile() const
{
    std::lock_guard const lock(m_mutex);
    return *m_current_file;
}

int s2sThreadComm::progress() const
{
    std::lock_guard const lock(m_mutex);
    return m_progress;
}

int s2sThreadComm::writing() const
{
    std::lock_guard const lock(m_mutex);
    return m_direction == s2sReadWriteWriting;
}

int s2sThreadComm::threadHasDied() const
{
    std::lock_guard const lock(m_mutex);
    return m_died;
}

void s2sThreadComm::requestTermination()
{
    std::lock_guard const lock(m_mutex);
    if (!m_termination)
        m_wake_up.set();
    m_termination = true;
}

int s2sThreadComm::num_translations() const
{
    std::lock_guard const lock(m_mutex);
    return static_cast<int>(m_details.size());
}

s2sTranslationDetails s2sThreadComm::translation_details(int index) const
{
    std::lock_guard const lock(m_mutex);
    if (index < 0 || index >= static_cast<int>(m_details.size()))
        return s2sTranslationDetails(s2sThreadCancelled);
    return m_details[static_cast<std::size_t>(index)];
}

s2sTranslationDetails s2sThreadComm::current_translation_details() const
{
    std::lock_guard const lock(m_mutex);
    return m_details.empty() ? s2sTranslationDetails() : m_details.back();
}

void s2sThreadComm::begin_translation(s2sTranslationElements const & elements)
{
    s2sTranslationDetails details(elements);
    std::lock_guard const lock(m_mutex);
    m_details.push_back(std::move(details));
    m_progress = 0;
}

void s2sThreadComm::finish_translation(s2sThreadStatus status, int processed, int failed,
                                       s2sVerification verification)
{
    std::lock_guard const lock(m_mutex);
    if (!m_details.empty())
        m_details.back().finish(status, processed, failed, std::move(verification));
}

void s2sThreadComm::set_progress(int percent)
{
    std::lock_guard const lock(m_mutex);
    m_progress = std::max(m_progress, std::clamp(percent, 0, 100));
}

void s2sThreadComm::set_thread_has_died()
{
    std::lock_guard const lock(m_mutex);
    m_died = true;
}

bool s2sThreadComm::termination_requested() const
{
    std::lock_guard const lock(m_mutex);
    return m_termination;
}
