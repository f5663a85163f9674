#include "sglDropFiles.h"

#include "sglTranslateDialog.h"

#include <wx/textctrl.h>

bool sglDropFiles::OnDropFiles(wxCoord, wxCoord, wxArrayString const & files)
{
    wxWindow * top = m_page;
    if (m_text)
        top = m_text;
    while (top->GetParent())
        top = top->GetParent();
    top->Raise();

    if (m_page) {
        m_page->handle_dropped_files(files);
    } else if (!files.empty()) {
        m_text->Clear();
        m_text->AppendText(files[0]);
    }
    return true;
}
