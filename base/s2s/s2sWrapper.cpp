#include "s2s/s2sWrapper.h"

#include "s2s/s2sJob.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sTranslationRun.h"

s2sWrapper::s2sWrapper(s2sVmr2vmr const & context, vmrabsAppInfo const & app_info, s2sThreadComm & comm,
                       s2sTranslatorLoader const * loader, vmrabsOutput * output_stream,
                       vmrabsOutput * error_stream, s2sTranslationElements const & elements)
    : m_parts{context, app_info, comm, loader, output_stream, error_stream}, m_elements(elements)
{
    m_files.add(m_elements);
}

int s2sWrapper::run() const
{
    return s2s_run_job(m_parts.comm, m_files, [this] {
        m_parts.comm.begin_translation(m_elements);
        s2sSideWork nothing_else;
        s2sTranslationRun run(m_parts, m_elements, m_files.inputs(), nothing_else);
        return run.run() == s2sThreadCompleted ? 1 : 0;
    });
}
