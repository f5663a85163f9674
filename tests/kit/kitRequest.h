#pragma once

#include "kit/kitWrapper.h"
#include "sglTranslation.h"

#include <functional>
#include <vector>

/// A request whose job does no work and ends as the test says. With several outputs its translations are the
/// entries of a batch.
class kitRequest : public sglTranslation {
public:
    std::vector<kitOutcome> outcomes{{}};
    std::function<void(s2sThreadComm &, int)> at_work; ///< on the worker's thread, in each translation

    using sglTranslation::channel;
    using sglTranslation::find_input_dlls;
    using sglTranslation::find_output_dlls;

protected:
    void create_wrapper() override
    {
        s2sTranslatorElementscoPageArr inputs;
        for (int i = 0; i < num_input_files(); ++i)
            inputs.append(input_elements(i));
        auto job = std::make_unique<kitWrapper>(channel(), s2sTranslationElements(inputs, output_elements(0)),
                                                outcomes);
        if (at_work)
            job->while_running = [this] { at_work(channel(), m_begun++); };
        set_wrapper(std::move(job));
    }

private:
    int m_begun = 0;
};
