#pragma once

class vmrabsAppInfo;

/// Tells on standard error of the exception that is being handled, with the program's name and build, so that
/// a user can report it. Only inside a catch block.
void sdb_exception_handler(vmrabsAppInfo const & info);

/// Ends the program at once after an exception that nothing can be done about.
[[noreturn]] void sdb_abort();
