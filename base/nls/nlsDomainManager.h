#pragma once

#include <memory>
#include <string>
#include <vector>

#include "nls/nlsApplicationSettings.h"
#include "nls/nlsLang.h"
#include "ut/utString.h"

/// The display language of the process, and where it comes from: the user's choice in the settings of the
/// application, then the environment. Changed at start-up on the main thread; language() may be read from any
/// thread.
class nlsDomainManager {
public:
    static void set_application_settings(std::unique_ptr<nlsApplicationSettings> settings);
    static nlsApplicationSettings * application_settings(); ///< null while none were given

    /// Where the files of the languages lie, for env_language. While none were given, every language counts
    /// as one that has files.
    static void language_folders(std::vector<std::string> folders);

    static void language(utString const & name); ///< puts a language in force
    static utString language();
    /// A number that changes with every language put in force, so that a reader knows when its texts are
    /// stale.
    static unsigned language_generation();

    /// `nlsLangStartUp`: the first of the languages that the user asks for, best first, that is English or
    /// has files, perhaps without its country; where there is none of them, the first; empty for none. The
    /// user asks for the stored choice, then for what LANGUAGE lists or, where that is not set, for the first
    /// of LC_ALL, LC_MESSAGES and LANG that is. `nlsLangFallBack`: the language in force (before
    /// there is one, the start-up language) without its country; empty when it has none. Sets the three
    /// variables below for the start-up one.
    static nlsLanguage env_language(nlsLang which);
    static nlsLanguage env_language(int which) { return env_language(static_cast<nlsLang>(which)); }

    static utString no_translation_language();             ///< the language of the keys, "English"
    static utString get_iso_locale(utString const & name); ///< pt-BR for pt_BR, en for English

    /// Non-zero lets the C library write numbers as the user's locale has them, 0 as "C" has them. Concerns
    /// the whole process; to be called while no other thread formats numbers.
    static void numeric_translation(int on);

    static utString the_env_language; ///< the language that env_language found
    static int the_env_type;          ///< 0 nowhere, 1 in the settings, 2 in the environment
    static int
        the_regional_settings_flag; ///< non-zero while the language in force follows the user's surroundings
};
