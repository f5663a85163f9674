#pragma once

#include "ap/apILibraryLoaderOperations.h"
#include "s2s/s2sMessage.h"
#include "ut/utPtr.h"

/// Makes sure, before a translation is begun, that the translators can be loaded. It opens no module in this
/// process: the translator host does that in its own.
class s2sTranslatorLoader {
public:
    /// The operations of the platform, with which components in this process load libraries, have no work
    /// here.
    explicit s2sTranslatorLoader(utObserverPtr<apILibraryLoaderOperations const> operations);

    /// The module is there, has its manifest beside it and was made for this version of the module interface.
    s2sFailure check(utString const & module) const;
};
