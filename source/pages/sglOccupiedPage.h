#pragma once

// Ahead of the other, which does not stand by itself.
#include <wx/window.h>

#include <wx/weakref.h>

/// Takes no input for a page, as long as this lives: while it works several files off, what the user does is
/// handled in between. The focus comes back afterwards.
class sglOccupiedPage {
public:
    explicit sglOccupiedPage(wxWindow & page) : m_page(&page), m_focus(wxWindow::FindFocus())
    {
        page.Disable();
    }
    ~sglOccupiedPage()
    {
        if (!m_page)
            return;
        m_page->Enable();
        if (m_focus && m_page->IsDescendant(m_focus) && m_focus->IsEnabled())
            m_focus->SetFocus();
    }
    sglOccupiedPage(sglOccupiedPage const &) = delete;
    sglOccupiedPage & operator=(sglOccupiedPage const &) = delete;

private:
    wxWeakRef<wxWindow> m_page;
    wxWeakRef<wxWindow> m_focus;
};
