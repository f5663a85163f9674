#pragma once

#include "sglTranslationDataDisplayer.h"

#include <wx/textctrl.h>

/// Appends the report of a translation to a text control, two blanks for each level.
class sglTDEditDisplayer : public sglTranslationDataDisplayer {
public:
    sglTDEditDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info,
                       wxTextCtrl * control); ///< the control is not owned
    virtual ~sglTDEditDisplayer() = default;

protected:
    void display_text(utString const & text) override;
    void increment_depth(utString const & text) override;
    void decrement_depth() override;

    void indent_and_display(utString const & text);

private:
    wxTextCtrl * m_control;
    int m_depth = 0;
};
