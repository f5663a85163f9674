#pragma once

#include <functional>

class s2sFileGuard;
class s2sThreadComm;

/// Runs the work of a wrapper as its contract wants it: waits until whoever starts the job lets it begin,
/// tidies up after dead processes in the folders of the outputs, lets no exception out, and tells the channel
/// at the very end that the job is over. Returns what the work returned, or 0.
int s2s_run_job(s2sThreadComm & comm, s2sFileGuard const & files, std::function<int()> const & work);
