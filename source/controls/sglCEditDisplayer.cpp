#include "sglCEditDisplayer.h"

#include "sglEdit.h"

#include "wxt/wxtStringConverter.h"

void sglCEditDisplayer::display(char const * text)
{
    wxCHECK_RET(m_edit, "text for a pane that is not there");
    auto event = std::make_unique<wxCommandEvent>(sglEVT_WORKER_TEXT, 0);
    event->SetString(wxtStringConverter::to_wx(utString(text)));
    m_edit->QueueEvent(event.release());
}
