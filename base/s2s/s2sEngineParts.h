#pragma once

#include "s2s/s2sMessage.h"

class s2sThreadComm;
class s2sTranslatorLoader;
class s2sVmr2vmr;
class vmrabsAppInfo;
class vmrabsOutput;

/// What a job works with. Nothing is owned.
struct s2sEngineParts {
    s2sVmr2vmr const & context;
    vmrabsAppInfo const & app_info;
    s2sThreadComm & comm;
    s2sTranslatorLoader const * loader;
    vmrabsOutput * output_stream; ///< the streams may be null, and their text is then lost
    vmrabsOutput * error_stream;

    void say_error(s2sMessage const & message) const;
    void say(s2sMessage const & message) const; ///< to the output stream

    /// A text as the streams show it; empty without streams, since it is they that know the user's language.
    utString text(utString const & domain, utString const & key, utTextArguments const & arguments) const;
};
