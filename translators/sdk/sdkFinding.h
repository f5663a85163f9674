#pragma once

#include "sdk/sdkText.h"

#include <optional>
#include <string>

// What a finding means for the verdict on a translation.
enum class sdkWeight {
    note,       // says something about the source; the output need not differ from it
    difference, // the output has it otherwise than the source
    loss        // the output lacks it
};

// One thing that a user has to know about a source, or about an output beside its source: as data for
// programs, and as a text for people.
struct sdkFinding {
    sdkWeight weight = sdkWeight::note;
    // English words with hyphens, such as "volume" or "not-translated"; docs/host-protocol.md has them all.
    std::string kind;
    // Name of the part; empty when it has none or the finding is not about a part.
    std::string part;
    // In the file ("#123", "D45") or in space ("(1, 2, 3)", in millimetres); may be empty.
    std::string place;
    // What the source and the output have: a count, or millimetres, mm2 or mm3, by the kind.
    std::optional<double> source = std::nullopt;
    std::optional<double> output = std::nullopt;
    // Names part, place and amounts itself.
    sdkText text = {};
};
