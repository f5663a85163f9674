#pragma once

#include <mutex>
#include <set>
#include <vector>

#include "ap/apCriticalSection.h"
#include "s2s/s2sThreadStatus.h"
#include "s2s/s2sTranslationDetails.h"
#include "s2s/s2sWakeUp.h"
#include "ut/utString.h"

/// The channel between a running job and whoever watches it. It does its own locking: apart from reset(), any
/// thread may call any operation at any time.
class s2sThreadComm {
public:
    /// The operations make the critical section; null stands for those of the platform.
    explicit s2sThreadComm(apISynchOperations const * operations);
    virtual ~s2sThreadComm() = default;
    s2sThreadComm(s2sThreadComm const &) = delete;
    s2sThreadComm & operator=(s2sThreadComm const &) = delete;

    /// Clears everything of the previous run; only while no job runs.
    void reset();

    /// The section that guards the start of a run: a job waits here before it touches the channel.
    apCriticalSection * getLock() const { return &m_start; }

    void currentFile(utString const & file, s2sThreadReadWrite direction);
    utString const & currentFile() const; ///< valid until reset()
    int progress() const;                 ///< 0 to 100, of the current translation, never falling during it
    int writing() const;
    int threadHasDied() const; ///< non-zero once the job has finished for good, however it finished
    void requestTermination(); ///< holds until reset(), also for a job that has not begun yet

    int num_translations() const; ///< begun so far
    /// A translation that has not begun has the status s2sThreadCancelled, as the rest of a cancelled batch
    /// has, and no entities.
    s2sTranslationDetails translation_details(int index) const;
    /// Of the translation begun last; of none, the status is s2sThreadNotEnded.
    s2sTranslationDetails current_translation_details() const;

    /// What follows is for the job.
    void begin_translation(s2sTranslationElements const & elements);
    /// The one begun last.
    void finish_translation(s2sThreadStatus status, int processed, int failed,
                            s2sVerification verification = {});
    void set_progress(int percent);
    void set_thread_has_died(); ///< the last call of a job
    bool termination_requested() const;
    int termination_descriptor() const
    {
        return m_wake_up.descriptor();
    } ///< readable once requested; may be -1

private:
    mutable apCriticalSection m_start;
    mutable std::mutex m_mutex;
    s2sWakeUp m_wake_up;
    std::set<utString> m_files; // keeps what currentFile() has returned
    utString const * m_current_file;
    s2sThreadReadWrite m_direction = s2sReadWriteReading;
    int m_progress = 0;
    bool m_died = false;
    bool m_termination = false;
    std::vector<s2sTranslationDetails> m_details;
};
