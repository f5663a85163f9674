#pragma once

#include <filesystem>
#include <vector>

#include "s2s/s2sEngineParts.h"
#include "s2s/s2sHostEvent.h"
#include "s2s/s2sTranslationElements.h"

/// The work of one translation: the checks before it, the translator host, and the output put in its place.
class s2sTranslationRun {
public:
    /// `inputs` are the files that the output must leave alone: those of all the translations of the job.
    s2sTranslationRun(s2sEngineParts const & parts, s2sTranslationElements const & elements,
                      std::vector<std::filesystem::path> const & inputs);

    /// Tells the channel the outcome and returns it. Never throws.
    s2sThreadStatus run();

private:
    s2sHostEnd attempt();
    void tell_ignored_options() const;
    s2sHostEnd translate(std::filesystem::path const & output, std::filesystem::path const & place);
    bool inputs_stand_ready();
    bool output_may_be_written(std::filesystem::path const & place) const;
    bool passes(s2sFailure const & failure) const; ///< says the failure, if it is one

    s2sEngineParts const & m_parts;
    s2sTranslationElements const & m_elements;
    std::vector<std::filesystem::path> const & m_inputs;
};
