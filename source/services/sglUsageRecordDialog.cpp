#include "services/sglUsageRecordDialog.h"

#include "controls/sglShownText.h"
#include "nls/sglHelpKey.h"
#include "services/sglUsageQuestion.h"
#include "sglMessageBox.h"
#include "sglResourceString.h"

#include "wxt/wxtStringConverter.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/xrc/xmlres.h>

namespace {

utString text_of(char const * key, utTextArguments const & arguments = {})
{
    return sglGUIString(key, "vmrgrlib").process(arguments);
}

wxString shown(std::string const & text)
{
    return sgl_shown_text(wxtStringConverter::to_wx(std::string_view(text)));
}

} // namespace

bool sgl_keep_usage_choice(aniUsageRecord const & record, bool agreed)
{
    auto const result = record.choose(agreed);
    if (!result)
        sgl_show_error_text(
            text_of("d.usage.messagebox::Your choice could not be saved in the folder %s: %s.\nWhat you had "
                    "chosen before still holds. Please check the permissions of the folder.",
                    ut_text_arguments(utString(record.folder()), result.message())));
    return static_cast<bool>(result);
}

wxBEGIN_EVENT_TABLE(sglUsageRecordDialog, sglDialog)
    EVT_BUTTON(wxID_OK, sglUsageRecordDialog::OnOk)
    EVT_BUTTON(XRCID("IDC_USAGE_DELETE"), sglUsageRecordDialog::OnDelete)
wxEND_EVENT_TABLE()

sglUsageRecordDialog::sglUsageRecordDialog(wxWindow * parent, aniUsageRecord record, apString const & text)
    : sglDialog("DLG_USAGE_RECORD", "vmrgrlib", parent), m_record(std::move(record))
{
    XRCCTRL(*this, "IDC_USAGE_AGREE", wxCheckBox)->SetValue(m_record.choice() == aniUsageAgreed);
    XRCCTRL(*this, "IDC_USAGE_FILE", wxStaticText)->SetLabelText(shown(m_record.file()));
    // The columns stand below one another.
    auto & view = *XRCCTRL(*this, "IDC_USAGE_RECORDS", wxTextCtrl);
    view.SetFont(wxFontInfo(view.GetFont().GetFractionalPointSize()).Family(wxFONTFAMILY_TELETYPE));
    show_records();
    sgl_show_usage_text(*this, text);
    sgl_help_with_help_key(*this, "source/dialogs/usage.htm");
}

void sglUsageRecordDialog::show_records()
{
    std::string const records = m_record.text();
    auto & view = *XRCCTRL(*this, "IDC_USAGE_RECORDS", wxTextCtrl);
    view.SetValue(records.empty() ? wxtStringConverter::to_wx(text_of("d.usage::Nothing is recorded."))
                                  : shown(records));
    view.ShowPosition(view.GetLastPosition());
    XRCCTRL(*this, "IDC_USAGE_DELETE", wxButton)->Enable(!records.empty());
}

void sglUsageRecordDialog::OnOk(wxCommandEvent & event)
{
    bool const agreed = XRCCTRL(*this, "IDC_USAGE_AGREE", wxCheckBox)->GetValue();
    auto const before = m_record.choice();
    bool const same = before == (agreed ? aniUsageAgreed : aniUsageRefused);
    // What cannot be saved stays on the screen.
    if (same || sgl_keep_usage_choice(m_record, agreed))
        event.Skip();
}

void sglUsageRecordDialog::OnDelete(wxCommandEvent &)
{
    auto const result = m_record.remove();
    if (!result)
        sgl_show_error_text(text_of("d.usage.messagebox::The file %s could not be deleted: %s.",
                                    ut_text_arguments(utString(m_record.file()), result.message())));
    // The button that is about to be disabled would take the focus with it, and the keys of the dialog.
    XRCCTRL(*this, "wxID_OK", wxButton)->SetFocus();
    show_records();
}
