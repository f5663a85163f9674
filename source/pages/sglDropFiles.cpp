#include "sglDropFiles.h"

#include "sglTranslateDialog.h"

#include <wx/textctrl.h>

void sgl_raise_top_window(wxWindow * window)
{
    while (wxWindow * const parent = window->GetParent())
        window = parent;
    window->Raise();
}

bool sglDropFiles::OnDropFiles(wxCoord, wxCoord, wxArrayString const & files)
{
    sgl_raise_top_window(m_page ? static_cast<wxWindow *>(m_page) : m_text);
    if (m_page) {
        m_page->handle_dropped_files(files);
    } else if (!files.empty()) {
        m_text->Clear();
        m_text->AppendText(files[0]);
    }
    return true;
}
