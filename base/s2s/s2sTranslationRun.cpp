#include "s2s/s2sTranslationRun.h"

#include <exception>
#include <utility>

#include "s2s/s2sHostConversation.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sPutInPlace.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sVmr2vmr.h"
#include "vmr/vmrTableInstance.h"

namespace fs = std::filesystem;

namespace {

/// A format that does not declare the option has it at its default.
bool verification_wanted(s2sTranslatorElements const & output)
{
    return !output.table() || output.table()->effective_value("vmrOptVerify") != utString("none");
}

} // namespace

s2sTranslationRun::s2sTranslationRun(s2sEngineParts const & parts, s2sTranslationElements const & elements,
                                     std::vector<fs::path> const & inputs, s2sSideWork & side_work)
    : m_parts(parts), m_elements(elements), m_inputs(inputs), m_side_work(side_work)
{
}

s2sThreadStatus s2sTranslationRun::run(std::unique_ptr<s2sHostAtWork> host)
{
    s2sHostEnd end;
    try {
        end = attempt(std::move(host));
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
    if (end.status != s2sThreadCompleted || end.processed == 0)
        judge_without_output(end.status);
    m_parts.comm.finish_translation(end.status, end.processed, end.failed, std::move(m_verification));
    return end.status;
}

/// What the host has found of an output that is not in its place counts no more, except that something of the
/// source is lost, or why nothing is known. A user who cancels wants to hear no more.
void s2sTranslationRun::judge_without_output(s2sThreadStatus status)
{
    auto & verdict = m_verification.verdict;
    if (status == s2sThreadCancelled)
        m_verification = {};
    else if (!verification_wanted(m_elements.output_elements()))
        verdict = sdbVerdictNone;
    else if (verdict != sdbVerdictLosses && verdict != sdbVerdictNotVerified)
        tell_not_verified();
}

void s2sTranslationRun::tell_not_verified()
{
    m_verification.verdict = sdbVerdictNotVerified;
    try {
        std::string const output =
            s2sOutputPlace(m_elements.output_elements().file()).named.filename().native();
        auto const reason = s2sMessages::output_absent(output);
        m_verification.findings.add({sdbWeightNote,
                                     "no-output",
                                     {},
                                     {},
                                     std::nullopt,
                                     std::nullopt,
                                     m_parts.text(s2s_message_domain(), reason.key, reason.arguments)});
        m_parts.say(s2sMessages::not_verified(output));
    } catch (std::exception const &) {
        // As with the outcome.
    }
}

s2sHostEnd s2sTranslationRun::attempt(std::unique_ptr<s2sHostAtWork> host)
{
    m_parts.comm.currentFile(m_elements.first_input_file(), s2sReadWriteReading);
    if (m_parts.comm.termination_requested())
        return {s2sThreadCancelled};
    if (auto const refusal = s2s_check_translation(m_elements, m_parts.loader, m_inputs))
        return refuse(*refusal);
    tell_ignored_options();
    if (!host) {
        host = std::make_unique<s2sHostAtWork>();
        if (auto const refusal = host->start(s2s_host_program(m_parts.app_info).str(), m_elements,
                                             m_parts.context.limits(), 1, m_side_work.folders_in_use()))
            return refuse(*refusal);
    }
    return translate(*host);
}

s2sHostEnd s2sTranslationRun::refuse(s2sRefusal const & refusal) const
{
    m_parts.comm.currentFile(refusal.file, s2sReadWriteReading);
    m_parts.say_error(refusal.message);
    return {refusal.status};
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

s2sHostEnd s2sTranslationRun::translate(s2sHostAtWork & host)
{
    s2sHostConversation conversation(m_parts, m_elements.output_elements().file(), host, m_side_work);
    auto end = conversation.hold();
    m_verification = conversation.take_verification();
    if (end.status != s2sThreadCompleted || end.processed == 0)
        return end;
    auto const files = s2s_places_of(host.staging(), host.place());
    if (auto const failure = s2s_put_in_place(host.staging(), host.place(), m_inputs)) {
        m_parts.say_error(*failure);
        end.status = s2sThreadWriteError;
    } else {
        m_side_work.files_changed(files);
    }
    return end;
}
