#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "s2s/s2sEngineParts.h"
#include "s2s/s2sHostAtWork.h"
#include "s2s/s2sHostEvent.h"
#include "s2s/s2sSideWork.h"
#include "s2s/s2sTranslationElements.h"
#include "s2s/s2sVerification.h"

/// The work of one translation whose turn has come: the checks before it, the translator host, and the output
/// put in its place.
class s2sTranslationRun {
public:
    /// `inputs` are the files that the output must leave alone: those of all the translations of the job.
    s2sTranslationRun(s2sEngineParts const & parts, s2sTranslationElements const & elements,
                      std::vector<std::filesystem::path> const & inputs, s2sSideWork & side_work);

    /// Tells the channel the outcome and returns it. Never throws. `host` has begun with this translation
    /// ahead of its turn; null when none has.
    s2sThreadStatus run(std::unique_ptr<s2sHostAtWork> host = nullptr);

private:
    void judge_without_output(s2sThreadStatus status);
    void tell_not_verified();
    s2sHostEnd attempt(std::unique_ptr<s2sHostAtWork> host);
    s2sHostEnd refuse(s2sRefusal const & refusal) const;
    void tell_ignored_options() const;
    s2sHostEnd translate(s2sHostAtWork & host);

    s2sEngineParts const & m_parts;
    s2sTranslationElements const & m_elements;
    std::vector<std::filesystem::path> const & m_inputs;
    s2sSideWork & m_side_work;
    s2sVerification m_verification;
};
