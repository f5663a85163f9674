#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "s2s/s2sMessage.h"
#include "s2s/s2sThreadStatus.h"
#include "s2s/s2sTranslationElements.h"

class s2sTranslatorLoader;

/// Why a translation ends before a host has begun with it.
struct s2sRefusal {
    s2sThreadStatus status = s2sThreadReadError;
    s2sMessage message;
    utString file; ///< the file that was being worked on
};

/// The output of a translation: as the user names it, absolute, and where a file of that name really lies.
struct s2sOutputPlace {
    explicit s2sOutputPlace(utString const & output);
    std::filesystem::path named;
    std::filesystem::path real;
};

/// Looks at the files and, unless `loader` is null, at the translators; nothing is said or changed. `inputs`
/// are the files that the output must leave alone. No value means that the translation may begin.
std::optional<s2sRefusal> s2s_check_translation(s2sTranslationElements const & elements,
                                                s2sTranslatorLoader const * loader,
                                                std::vector<std::filesystem::path> const & inputs);
