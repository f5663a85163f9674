#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "s2s/s2sHostLink.h"
#include "s2s/s2sHostProcess.h"
#include "s2s/s2sLimits.h"
#include "s2s/s2sStagingFolder.h"
#include "s2s/s2sTranslationChecks.h"

/// A translator host with its job, from the start of the process on: the folder that it writes into, the
/// process, and what it says. The destructor ends the process and then removes the folder.
class s2sHostAtWork {
public:
    /// Makes the folder, starts `program` and sends the job. The host removes the folder, and those of
    /// `others`, when this process is gone. It shares the free memory with other hosts, `hosts` with itself.
    /// To be called once.
    std::optional<s2sRefusal> start(std::string const & program, s2sTranslationElements const & elements,
                                    s2sLimits const & limits, int hosts,
                                    std::vector<std::string> const & others);

    /// For a host that need share the free memory no longer: it may have all that is free now, unless it has
    /// more already or a setting says how much.
    void allow_free_memory(s2sLimits const & limits);
    s2sAllowance const & allowance() const { return m_allowance; }

    s2sHostProcess & process() { return m_process; }
    s2sHostLink & link() { return *m_link; } ///< only after a start without refusal
    std::filesystem::path const & folder() const { return m_staging.path(); }
    s2sStagingFolder const & staging() const { return m_staging; }
    std::filesystem::path const & place() const { return m_place; } ///< where the output is to go from there

private:
    std::filesystem::path m_place;
    s2sStagingFolder m_staging;
    s2sHostProcess m_process;
    std::optional<s2sHostLink> m_link;
    s2sAllowance m_allowance;
};
