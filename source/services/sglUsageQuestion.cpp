#include "services/sglUsageQuestion.h"

#include "controls/sglShownText.h"
#include "controls/sglWrapLabel.h"
#include "nls/sglHelpKey.h"
#include "wxt/wxtApStringConverter.h"

#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/xrc/xmlres.h>

sglUsageQuestion::sglUsageQuestion(wxWindow * parent, apString const & text)
    : sglDialog("DLG_USAGE_QUESTION", "vmrgrlib", parent)
{
    SetAffirmativeId(wxID_YES);
    SetEscapeId(wxID_NO);
    auto & question = *XRCCTRL(*this, "IDC_USAGE_QUESTION", wxStaticText);
    question.SetFont(question.GetFont().Bold());
    sgl_show_usage_text(*this, text);
    sgl_help_with_help_key(*this, "source/dialogs/usage.htm");
}

void sgl_show_usage_text(wxDialog & dialog, apString const & text)
{
    auto & label = *XRCCTRL(dialog, "IDC_USAGE_TEXT", wxStaticText);
    label.SetLabelText(sgl_shown_text(wxtApStringConverter::to_wx(text)));
    sgl_wrap_label(label, dialog.ConvertDialogToPixels(wxSize(290, 0)).x);
    dialog.GetSizer()->SetSizeHints(&dialog);
    dialog.CentreOnParent(wxBOTH);
}
