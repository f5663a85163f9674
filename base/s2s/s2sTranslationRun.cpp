#include "s2s/s2sTranslationRun.h"

#include <exception>

#include "s2s/s2sFiles.h"
#include "s2s/s2sHostConversation.h"
#include "s2s/s2sHostJob.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sPutInPlace.h"
#include "s2s/s2sStagingFolder.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sTranslatorLoader.h"
#include "s2s/s2sVmr2vmr.h"
#include "vmr/vmrTableInstance.h"

namespace fs = std::filesystem;

s2sTranslationRun::s2sTranslationRun(s2sEngineParts const & parts, s2sTranslationElements const & elements,
                                     std::vector<fs::path> const & inputs)
    : m_parts(parts), m_elements(elements), m_inputs(inputs)
{
}

s2sThreadStatus s2sTranslationRun::run()
{
    s2sHostEnd end;
    try {
        end = attempt();
    } catch (std::exception const & problem) {
        end = {m_parts.comm.writing() ? s2sThreadWriteError : s2sThreadReadError};
        try {
            m_parts.say_error(s2sMessages::engine_failed(problem.what()));
        } catch (std::exception const &) {
            // A stream that takes no text any more must not keep the outcome from the channel.
        }
    }
    if (end.status == s2sThreadCompleted)
        m_parts.comm.set_progress(100);
    m_parts.comm.finish_translation(end.status, end.processed, end.failed);
    return end.status;
}

s2sHostEnd s2sTranslationRun::attempt()
{
    std::error_code error;
    auto const output = fs::absolute(m_elements.output_elements().file().str(), error);
    auto const place = s2s_real_place(output);

    m_parts.comm.currentFile(m_elements.first_input_file(), s2sReadWriteReading);
    if (m_parts.comm.termination_requested())
        return {s2sThreadCancelled};
    // Before all else, so that the user hears of it even where the input could not be read either.
    if (!passes(s2s_is_one_of(output, m_inputs) ? s2sFailure(s2sMessages::output_is_input(output))
                                                : std::nullopt))
        return {s2sThreadWriteError};
    if (!passes(m_elements.input_elements().empty() ? s2sFailure(s2sMessages::no_input(output))
                                                    : std::nullopt))
        return {s2sThreadReadError};
    if (!inputs_stand_ready())
        return {s2sThreadReadError};
    if (!output_may_be_written(place))
        return {s2sThreadWriteError};
    tell_ignored_options();
    return translate(output, place);
}

void s2sTranslationRun::tell_ignored_options() const
{
    auto const tell = [this](s2sTranslatorElements const & side) {
        if (side.table())
            for (auto const & problem : side.table()->problems())
                m_parts.say_error(s2sMessages::option_ignored(problem));
    };
    for (auto const & input : m_elements.input_elements())
        tell(input);
    tell(m_elements.output_elements());
}

s2sHostEnd s2sTranslationRun::translate(fs::path const & output, fs::path const & place)
{
    s2sStagingFolder staging;
    if (!passes(staging.create(place)))
        return {s2sThreadWriteError};

    s2sOutputPlaces const places{output, staging.path(), staging.path() / place.filename()};
    s2sHostConversation conversation(m_parts, m_elements.output_elements().file());
    auto end = conversation.hold(s2s_host_program(m_parts.app_info).str(), staging.path().native(),
                                 s2s_host_job(m_elements, places, m_parts.context.memory_limit()));
    if (end.status == s2sThreadCompleted && end.processed > 0 &&
        !passes(s2s_put_in_place(staging.path(), place, m_inputs)))
        end.status = s2sThreadWriteError;
    return end;
}

bool s2sTranslationRun::inputs_stand_ready()
{
    for (auto const & input : m_elements.input_elements()) {
        m_parts.comm.currentFile(input.file(), s2sReadWriteReading);
        if (!passes(s2s_check_input(input.file().str())))
            return false;
        if (m_parts.loader && !passes(m_parts.loader->check(input.translator())))
            return false;
    }
    m_parts.comm.currentFile(m_elements.first_input_file(), s2sReadWriteReading);
    return true;
}

bool s2sTranslationRun::output_may_be_written(fs::path const & place) const
{
    if (!passes(s2s_check_output(place)))
        return false;
    return !m_parts.loader || passes(m_parts.loader->check(m_elements.output_elements().translator()));
}

bool s2sTranslationRun::passes(s2sFailure const & failure) const
{
    if (failure)
        m_parts.say_error(*failure);
    return !failure;
}
