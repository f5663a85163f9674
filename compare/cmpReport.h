#pragma once

#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "s2s/s2sHostEvent.h"

/// Something found out, with its text in the user's language.
struct cmpFinding {
    sdbWeight weight = sdbWeightNote;
    std::string kind;
    std::string part;
    std::string place;
    std::optional<double> a;
    std::optional<double> b;
    std::string text;
};

struct cmpSide {
    std::string file;
    std::string format;
    nlohmann::json inventory;         ///< the event of the host, null when the file was not read
    std::vector<cmpFinding> findings; ///< of the reader
};

/// What came of a comparison.
struct cmpReport {
    cmpSide a;
    cmpSide b;
    std::vector<nlohmann::json> pairs; ///< the events of the host
    std::vector<cmpFinding> findings;  ///< differences and notes
    bool counts_only = false;
    sdbVerdict verdict = sdbVerdictNone;
    std::string problem; ///< why they could not be compared

    bool compared() const { return verdict == sdbVerdictVerified || verdict == sdbVerdictDiffers; }
    std::size_t differences() const;
    int exit_status() const; ///< 0 the same, 1 different, 2 not compared
};

/// True for a finding that makes the files differ.
inline bool cmp_is_difference(cmpFinding const & finding)
{
    return finding.weight != sdbWeightNote;
}
