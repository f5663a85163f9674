#include "pages/sglLabelKeys.h"

#include "sglComboBox.h"

#include <vector>
#include <wx/accel.h>
#include <wx/stattext.h>

namespace {

void find_labels(wxWindow & window, std::vector<wxStaticText *> & labels)
{
    for (wxWindow * const child : window.GetChildren()) {
        if (auto * const label = dynamic_cast<wxStaticText *>(child))
            labels.push_back(label);
        find_labels(*child, labels);
    }
}

} // namespace

void sgl_add_label_keys(wxWindow & page)
{
    std::vector<wxStaticText *> labels;
    find_labels(page, labels);
    std::vector<wxAcceleratorEntry> keys;
    for (auto * const label : labels) {
        auto * const box = dynamic_cast<sglComboBox *>(label->GetNextSibling());
        wxString const text = label->GetLabel();
        auto const mark = text.find('&');
        if (!box || mark == wxString::npos || mark + 1 >= text.length())
            continue;
        int const command = wxWindow::NewControlId();
        keys.emplace_back(wxACCEL_ALT, static_cast<int>(wxToupper(text[mark + 1])), command);
        page.Bind(
            wxEVT_MENU, [box](wxCommandEvent &) { box->SetFocus(); }, command);
    }
    if (!keys.empty())
        page.SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(keys.size()), keys.data()));
}
