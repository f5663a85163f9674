#include "s2s/s2sJob.h"

#include "s2s/s2sFileGuard.h"
#include "s2s/s2sStagingFolder.h"
#include "s2s/s2sThreadComm.h"

int s2s_run_job(s2sThreadComm & comm, s2sFileGuard const & files, std::function<int()> const & work)
{
    {
        apCriticalSectionScope const start(*comm.getLock());
    }
    int result = 0;
    try {
        result = work();
        // Last, because a large folder takes a while and whoever watches should see a translation begun at
        // once.
        for (auto const & folder : files.output_folders())
            s2s_remove_left_behind(folder);
    } catch (...) {
        // What could be said has been said where it happened; a translation that is still open has failed.
        if (comm.current_translation_details().status() == s2sThreadNotEnded)
            comm.finish_translation(comm.writing() ? s2sThreadWriteError : s2sThreadReadError, 0, 0);
    }
    comm.set_thread_has_died();
    return result;
}
