#include "sglClipboard.h"

#include "controls/sglShownText.h"
#include "wxt/wxtStringConverter.h"

#include <wx/clipbrd.h>

sglClipboardStatus sglClipboardItem::copy_to_clipboard()
{
    auto * const clipboard = wxClipboardBase::Get();
    if (clipboard->IsOpened())
        return sglClipboardStatus::already_open;
    if (!clipboard->Open())
        return sglClipboardStatus::failed;
    clipboard->Clear();
    bool const taken = clipboard->SetData(create_data_handle(utPtrRelease));
    clipboard->Close();
    return taken ? sglClipboardStatus::copied : sglClipboardStatus::failed;
}

wxDataObject * sglClipboardText::create_data_handle(utPtrReleaseTag) const
{
    return new wxTextDataObject(sgl_shown_text(wxtStringConverter::to_wx(m_text)));
}
