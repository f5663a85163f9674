#pragma once

/// Which of the languages of the user's surroundings is meant. The numbers are known to callers.
enum nlsLang {
    nlsLangStartUp = 1,  ///< the one to adopt when the program starts
    nlsLangFallBack = 3, ///< the one to try when there are no files for the language in force
};
