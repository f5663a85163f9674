#pragma once

#include "host/hostFindings.h"
#include "host/hostTestimony.h"
#include "sdk/sdkResult.h"

#include <string>

// What holding an output against its source came to.
enum class hostVerdict {
    verified,
    differs,     // all is there, but not all as it is in the source
    losses,      // something of the source is not in the output
    not_verified // nobody knows
};

// `failed` is the number of entities that the reader or writer gave up.
hostVerdict host_verdict(hostTestimony const & testimony, hostFindings const & findings, std::int64_t failed);

// On a translation that has written nothing: losses when it is known what of the source gave no shape, for
// then that is why; when the output could not be written, nobody knows what it would have held.
hostVerdict host_verdict_without_output(sdkStatus status, hostFindings const & findings, std::int64_t failed);

// The word of the protocol.
char const * host_verdict_name(hostVerdict verdict);

// What the user is told in one line.
sdkText host_verdict_text(hostVerdict verdict, hostFindings const & findings, std::int64_t failed,
                          bool counts_only, std::string const & output);

// The same where there is no output; the verdict is losses or not_verified.
sdkText host_verdict_text_without_output(hostVerdict verdict, hostFindings const & findings,
                                         std::int64_t failed, std::string const & output);
