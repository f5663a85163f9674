#pragma once

#include "ap/apString.h"
#include "s2s/s2sAnalytics.h"
#include "ut/utPtr.h"
#include "ut/utString.h"
#include "vmr/vmrabsAppInfo.h"

class wxWindow;

/// The application's usage reporter: the engine's recorder with the two ways of showing the user's choice
/// about it.
class sglAnalytics : public s2sAnalytics {
public:
    /// `a` is the folder of the user's choice and of the records, `b` the version of the program that stands
    /// in each of them; `text` says in the dialogs what is recorded. In the unified encoding of `info`.
    void initialise(utObserverPtr<vmrabsAppInfo const> info, utString const & a, utString const & b,
                    utString const & text);

    void show_menu_dialog(wxWindow * parent) const;    ///< does nothing before initialise has succeeded
    void show_startup_dialog(wxWindow * parent) const; ///< the same

private:
    apString m_text;
};
