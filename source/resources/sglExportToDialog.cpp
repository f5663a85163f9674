#include "sglExportToDialog.h"

#include "controls/sglShownText.h"
#include "nls/sglHelpKey.h"
#include "wxt/wxtStringConverter.h"

#include <wx/listbox.h>
#include <wx/xrc/xmlres.h>

wxBEGIN_EVENT_TABLE(sglExportToDialog, sglDialog)
    EVT_BUTTON(XRCID("IDC_EXPORTTO_OK"), sglExportToDialog::OnOk)
    EVT_BUTTON(XRCID("IDC_EXPORTTO_CANCEL"), sglExportToDialog::OnCancel)
    EVT_LISTBOX_DCLICK(XRCID("IDC_EXPORTTO_LIST"), sglExportToDialog::OnOk)
    EVT_INIT_DIALOG(sglExportToDialog::OnInitDialog)
wxEND_EVENT_TABLE()

sglExportToDialog::sglExportToDialog(wxWindow * parent)
    : sglDialog("DLG_EXPORTTO_DIALOG", "vmrgrlib", parent),
      m_list(XRCCTRL(*this, "IDC_EXPORTTO_LIST", wxListBox))
{
    SetEscapeId(XRCID("IDC_EXPORTTO_CANCEL"));
    CentreOnParent(wxBOTH);
    sgl_help_with_help_key(*this, "source/resources/exportto.htm");
}

int sglExportToDialog::initialise(utString const & file)
{
    if (!file.invalid())
        m_options.set_options_file(file);
    else if (!m_options.use_default_options_file())
        return 0;
    return m_options.read_options_file();
}

sglExportSystem const * sglExportToDialog::selected_system() const
{
    // By the name and not by the row: of several systems of one name the first is meant.
    auto const * const selected = m_options.system(m_list->GetSelection());
    return selected ? m_options.find_named_system(selected->get_system_name()) : nullptr;
}

void sglExportToDialog::OnOk(wxCommandEvent &)
{
    EndModal(wxID_OK);
}

void sglExportToDialog::OnCancel(wxCommandEvent &)
{
    EndModal(wxID_CANCEL);
}

void sglExportToDialog::OnInitDialog(wxInitDialogEvent & event)
{
    event.Skip();
    for (int index = 0; index < m_options.num_systems(); ++index)
        m_list->Append(sgl_shown_text(wxtStringConverter::to_wx(m_options.system(index)->get_system_name())));
    if (m_options.num_systems() > 0)
        m_list->SetSelection(0);
}
