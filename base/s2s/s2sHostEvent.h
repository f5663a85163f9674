#pragma once

#include <optional>
#include <string_view>
#include <variant>

#include "s2s/s2sThreadStatus.h"
#include "sdb/sdbFinding.h"
#include "sdb/sdbVerdict.h"
#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// Work on a file begins.
struct s2sHostFile {
    utString path;
    s2sThreadReadWrite direction = s2sReadWriteReading;
};

/// 0 to 100.
struct s2sHostProgress {
    int percent = 0;
};

struct s2sHostMessage {
    bool error = false; ///< for the error stream, else for the output stream
    utString domain;
    utString key;
    utTextArguments arguments;
};

/// Something that the user has to know about a source, or about an output beside its source.
struct s2sHostFinding {
    sdbWeight weight = sdbWeightNote;
    utString kind;
    utString part;
    utString place;
    std::optional<double> source;
    std::optional<double> output;
    utString domain; ///< of the text, with its key and arguments
    utString key;
    utTextArguments arguments;
};

/// What holding the output against the source came to.
struct s2sHostVerdict {
    sdbVerdict verdict = sdbVerdictNone; ///< never none
};

/// The last event of a translation.
struct s2sHostEnd {
    s2sThreadStatus status = s2sThreadNotEnded;
    int processed = 0;
    int failed = 0;
};

/// What one line of the translator host says; the first alternative stands for a line that is none of the
/// others.
using s2sHostEvent = std::variant<std::monostate, s2sHostFile, s2sHostProgress, s2sHostMessage,
                                  s2sHostFinding, s2sHostVerdict, s2sHostEnd>;

/// Reads a line without its end. Bytes that are no UTF-8 text, such as a format library may copy from a file,
/// are replaced before reading; docs/host-protocol.md describes the lines.
s2sHostEvent s2s_parse_host_event(std::string_view line);

/// The text with every byte that is no part of valid UTF-8 replaced by U+FFFD.
std::string s2s_repair_utf8(std::string_view text);
