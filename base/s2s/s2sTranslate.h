#pragma once

#include "ap/apIThreadTask.h"

class s2sWrapperBase;
class vmrabsAppInfo;

/// The task of the worker thread: runs a job. It owns nothing; the job must outlive the thread.
class s2sTranslate : public apIThreadTask {
public:
    s2sTranslate(s2sWrapperBase const * wrapper, vmrabsAppInfo const * app_info);

    void run() override;
    int result() const { return m_result; } ///< of the job, once the thread has ended; 0 before

private:
    s2sWrapperBase const * m_wrapper;
    int m_result = 0;
};
