#pragma once

#include "ap/apString.h"
#include "sglDialog.h"

/// Asks once whether usage data may be recorded. ShowModal() gives wxID_YES when the user agrees; closing it
/// is a refusal.
class sglUsageQuestion : public sglDialog {
public:
    sglUsageQuestion(wxWindow * parent, apString const & text);
};

/// Puts the text that says what is recorded into the dialog's label for it, broken into lines, and gives the
/// dialog the size for it, over its parent.
void sgl_show_usage_text(wxDialog & dialog, apString const & text);
