#pragma once

#include <memory>

#include "s2s/s2sThreadStatus.h"
#include "s2s/s2sTranslationElements.h"
#include "s2s/s2sVerification.h"

/// The engine's record of one translation: a value, cheap to copy, as the translation stood at the moment of
/// asking.
class s2sTranslationDetails {
public:
    /// A translation that has not begun: no files, nothing translated.
    explicit s2sTranslationDetails(s2sThreadStatus status = s2sThreadNotEnded);
    /// A translation that begins.
    explicit s2sTranslationDetails(s2sTranslationElements const & elements);

    s2sThreadStatus status() const { return m_status; }
    int num_processed() const { return m_processed; } ///< entities; 0 means that no output was produced
    int num_failed() const { return m_failed; }       ///< entities
    /// Valid as long as this object or a copy of it lives.
    s2sTranslationElements const & elements() const { return *m_elements; }

    sdbVerdict verdict() const { return m_verification->verdict; }
    /// Valid as long as this object or a copy of it lives.
    sdbFindings const & findings() const { return m_verification->findings; }

    void finish(s2sThreadStatus status, int processed, int failed, s2sVerification verification);

private:
    s2sThreadStatus m_status = s2sThreadNotEnded;
    int m_processed = 0;
    int m_failed = 0;
    std::shared_ptr<s2sTranslationElements const> m_elements;
    std::shared_ptr<s2sVerification const> m_verification;
};
