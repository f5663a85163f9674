#pragma once

#include "s2s/s2sThreadComm.h"
#include "s2s/s2sWrapperBase.h"

#include <functional>
#include <vector>

/// How one translation of a kitWrapper ends.
struct kitOutcome {
    s2sThreadStatus status = s2sThreadCompleted;
    int processed = 1;
    int failed = 0;
    s2sVerification verification = {};
};

/// A job that does no work: it goes through its translations in the channel and leaves the outcomes that a
/// test wants.
class kitWrapper : public s2sWrapperBase {
public:
    kitWrapper(s2sThreadComm & channel, s2sTranslationElements elements, std::vector<kitOutcome> outcomes)
        : m_channel(channel), m_elements(std::move(elements)), m_outcomes(std::move(outcomes))
    {
    }

    std::function<void()> while_running; ///< called in the middle of each translation

    int run() const override
    {
        int result = 1;
        for (auto const & outcome : m_outcomes) {
            m_channel.begin_translation(m_elements);
            if (while_running)
                while_running();
            m_channel.finish_translation(outcome.status, outcome.processed, outcome.failed,
                                         outcome.verification);
            if (outcome.status != s2sThreadCompleted)
                result = 0;
        }
        m_channel.set_thread_has_died();
        return result;
    }

private:
    s2sThreadComm & m_channel;
    s2sTranslationElements m_elements;
    std::vector<kitOutcome> m_outcomes;
};
