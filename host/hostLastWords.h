#pragma once

#include <string>

class hostEvents;

// From now on what waits to be sent reaches the engine also when the process crashes, runs out of stack or is
// told to end, and a process that ends because no memory is left says so. The events must live as long as the
// process. To be called once, on the thread that translates: only there is a handler left a stack of its own
// when the other one is used up.
// `first_file` is the one that the memory did not suffice for when no work on any has begun.
void host_send_last_words_of(hostEvents & events, std::string const & first_file);
