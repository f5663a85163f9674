#pragma once

// What of the system calls may not be made, which the rules for files do not cover: programs, sockets, other
// processes, rights of files, and all that belongs to the kernel's administration. The calls fail with EPERM.

// For this thread and those that it begins from now on, with their processes. False when the kernel has no
// such filters, or no more of them. The process must have no_new_privs.
bool host_refuse_calls();

// The same for making processes, and for signals to other processes than this. Threads can be made.
bool host_refuse_processes();
