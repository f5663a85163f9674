#pragma once

#include <filesystem>
#include <string>

#include "s2s/s2sLimits.h"
#include "s2s/s2sTranslationElements.h"

/// Where the parts of one translation's output go.
struct s2sOutputPlaces {
    std::filesystem::path final;   ///< the output as the user knows it, absolute
    std::filesystem::path staging; ///< the folder in which the translator writes
    std::filesystem::path file;    ///< the chief file in that folder
};

/// The job of docs/host-protocol.md as one line.
std::string s2s_host_job(s2sTranslationElements const & elements, s2sOutputPlaces const & places,
                         s2sAllowance const & allowance);
