#include "sglDropFiles.h"

#include "sglTranslateDialog.h"

#include <algorithm>
#include <vector>
#include <wx/dialog.h>
#include <wx/modalhook.h>
#include <wx/textctrl.h>
#include <wx/weakref.h>

namespace {

/// The dialogs that have been shown and have not ended. A dialog that another hook has answered instead is
/// never said to end; it counts until it is destroyed.
class OpenDialogs : private wxModalDialogHook {
public:
    OpenDialogs() { Register(); }

    bool any() const
    {
        return std::any_of(m_dialogs.begin(), m_dialogs.end(), [](auto const & dialog) { return !!dialog; });
    }

private:
    int Enter(wxDialog * dialog) override
    {
        forget(nullptr); // those that are gone
        forget(dialog);
        m_dialogs.emplace_back(dialog);
        return wxID_NONE;
    }
    void Exit(wxDialog * dialog) override { forget(dialog); }
    void forget(wxDialog const * dialog)
    {
        std::erase_if(m_dialogs, [dialog](auto const & one) { return one.get() == dialog; });
    }

    std::vector<wxWeakRef<wxDialog>> m_dialogs;
};

} // namespace

bool sgl_dialog_is_open()
{
    static OpenDialogs dialogs;
    return dialogs.any();
}

bool sgl_page_takes_files(wxWindow const & page)
{
    return page.IsEnabled() && !sgl_dialog_is_open();
}

void sgl_raise_top_window(wxWindow * window)
{
    while (wxWindow * const parent = window->GetParent())
        window = parent;
    window->Raise();
}

sglDropFiles::sglDropFiles(sglTranslateDialog * page) : m_page(page)
{
    sgl_dialog_is_open();
}

bool sglDropFiles::OnDropFiles(wxCoord, wxCoord, wxArrayString const & files)
{
    if (m_page && !sgl_page_takes_files(*m_page))
        return false;
    sgl_raise_top_window(m_page ? static_cast<wxWindow *>(m_page) : m_text);
    if (m_page) {
        m_page->handle_dropped_files(files);
    } else if (!files.empty()) {
        m_text->Clear();
        m_text->AppendText(files[0]);
    }
    return true;
}
