#include "s2s/s2sBatchWrapper.h"

#include "s2s/s2sBatchAhead.h"
#include "s2s/s2sBatchMarker.h"
#include "s2s/s2sJob.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sTranslationRun.h"
#include "vmr/vmrabsOutput.h"

namespace {

constexpr char const * not_translated = "DO_NOT_TRANSLATE";

} // namespace

s2sBatchWrapper::s2sBatchWrapper(s2sVmr2vmr const & context, vmrabsAppInfo const & app_info,
                                 s2sThreadComm & comm, s2sTranslatorLoader const * loader,
                                 vmrabsOutput * output_stream, vmrabsOutput * error_stream,
                                 s2sTranslationElementscoPageArr const & translations)
    : m_parts{context, app_info, comm, loader, output_stream, error_stream}, m_translations(translations)
{
    for (auto const & translation : m_translations)
        m_files.add(translation);
}

int s2sBatchWrapper::run() const
{
    return s2s_run_job(m_parts.comm, m_files, [this] { return run_all(); });
}

int s2sBatchWrapper::run_all() const
{
    s2sBatchAhead ahead(m_parts, m_translations, m_files.inputs());
    bool all_completed = true;
    for (int i = 0; i < m_translations.count(); ++i) {
        // The first begins in any case, so that a job that is stopped before it begins has an outcome.
        if (i > 0 && m_parts.comm.termination_requested())
            return 0;
        m_parts.comm.begin_translation(m_translations[i]);
        write_header(i);
        s2sTranslationRun run(m_parts, m_translations[i], m_files.inputs(), ahead);
        auto const status = run.run(ahead.take(i));
        all_completed = all_completed && status == s2sThreadCompleted;
    }
    return all_completed ? 1 : 0;
}

void s2sBatchWrapper::write_header(int index) const
{
    auto const & translation = m_translations[index];
    auto const header = s2sMessages::batch_header(translation.first_input_file().str(),
                                                  translation.output_elements().file().str());
    for (auto const stream : {m_parts.output_stream, m_parts.error_stream}) {
        if (!stream)
            continue;
        // The marker stands on lines of its own, whatever the text before it ended with.
        stream->message(not_translated, "%s", (index > 0 ? "\n" : "") + s2s_batch_marker().str() + "\n");
        stream->write(s2s_message_domain().c_str(), header.key.c_str(), header.arguments);
        stream->message(not_translated, "%s", "\n" + s2s_batch_marker().str() + "\n");
    }
}
