#pragma once

/// From now on a process that would crash because there is no memory left, and nothing was there to catch it,
/// on whatever thread, prints `text` on standard error in place of that and ends with `status`. Destructors
/// do not run. The text is not copied.
void end_when_memory_runs_out(char const * text, int status);

/// Whether the exception that is being handled says that there is no memory. Where a destructor could not let
/// it out there may be none at hand any more; then what counts is whether memory was refused to this thread,
/// once the function above has been called.
bool memory_has_run_out();

/// To be called where an exception has been caught: ends the process as above when it says that there is no
/// memory.
void end_if_memory_has_run_out();
