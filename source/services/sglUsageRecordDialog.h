#pragma once

#include "ani/aniUsageRecord.h"
#include "sglDialog.h"

/// Shows what was recorded about the use of the program, where, and whether the user agrees to it; they can
/// delete the records at once, and change their mind with OK.
class sglUsageRecordDialog : public sglDialog {
public:
    sglUsageRecordDialog(wxWindow * parent, aniUsageRecord record, apString const & text);

    wxDECLARE_EVENT_TABLE();

private:
    void OnOk(wxCommandEvent & event);
    void OnDelete(wxCommandEvent & event);

    void show_records();

    aniUsageRecord m_record;
};

/// Keeps the user's choice; they are told when it cannot be kept, and the result is false.
bool sgl_keep_usage_choice(aniUsageRecord const & record, bool agreed);
