#include "sglEdit.h"

#include "sglMenu.h"

#include "controls/sglShownText.h"
#include "wxt/wxtStringConverter.h"

#include <wx/menu.h>
#include <wx/stopwatch.h>

wxDEFINE_EVENT(sglEVT_WORKER_TEXT, wxCommandEvent);
wxIMPLEMENT_DYNAMIC_CLASS(sglEdit, wxTextCtrl);

namespace {

wxDEFINE_EVENT(EVT_TEXT_WAITING, wxThreadEvent);

/// How long texts are gathered before the user's events take their turn. Short enough to go unnoticed, long
/// enough to keep up with a worker that does nothing but write.
constexpr long slice_milliseconds = 15;

/// How much text a slice appends at most: the toolkit's control needs time in proportion.
constexpr std::size_t slice_characters = 50'000;

} // namespace

wxBEGIN_EVENT_TABLE(sglEdit, wxTextCtrl)
    EVT_LEFT_DOWN(sglEdit::OnLButtonDown)
    EVT_LEFT_DCLICK(sglEdit::OnLButtonDblClk)
    EVT_RIGHT_DOWN(sglEdit::OnRButtonDown)
    EVT_CONTEXT_MENU(sglEdit::OnContextMenu)
    EVT_COMMAND(wxID_ANY, sglEVT_WORKER_TEXT, sglEdit::OnWorkerThreadText)
    wx__DECLARE_EVT1(EVT_TEXT_WAITING, wxID_ANY, wxThreadEventHandler(sglEdit::OnTextWaiting))
wxEND_EVENT_TABLE()

sglEdit::sglEdit(wxWindow * parent, wxWindowID id, wxString const & value, wxPoint const & position,
                 wxSize const & size, long style)
    : wxTextCtrl(parent, id, value, position, size, style)
{
}

sglEdit::~sglEdit() = default;

utString sglEdit::get_all_text() const
{
    return wxtStringConverter::to_ut(GetValue());
}

void sglEdit::DiscardEdits()
{
    m_text_arrived = false;
    wxTextCtrl::DiscardEdits();
}

void sglEdit::SetMaxLength(unsigned long length)
{
    if (IsSingleLine())
        wxTextCtrl::SetMaxLength(length);
}

void sglEdit::OnLButtonDown(wxMouseEvent & event)
{
    if (m_editable)
        event.Skip();
}

void sglEdit::OnLButtonDblClk(wxMouseEvent & event)
{
    if (m_editable)
        event.Skip();
}

void sglEdit::OnRButtonDown(wxMouseEvent & event)
{
    if (!m_editable)
        return;
    if (m_context_menu.invalid()) {
        event.Skip();
        return;
    }
    pop_up_menu(event.GetPosition());
}

void sglEdit::OnContextMenu(wxContextMenuEvent & event)
{
    // The key for it. A press of the mouse comes here only when the operation above has let it pass.
    if (!m_editable)
        return;
    if (m_context_menu.invalid())
        event.Skip();
    else
        pop_up_menu(wxDefaultPosition);
}

void sglEdit::pop_up_menu(wxPoint position)
{
    std::unique_ptr<wxMenu> const menu(sglMenu("vmrgrlib").create_menu(m_context_menu));
    if (!menu)
        return;
    if (position == wxPoint(-1, -1))
        position = wxPoint(GetSize().x / 2, GetSize().y / 2);
    PopupMenu(menu.get(), position);
}

void sglEdit::OnWorkerThreadText(wxCommandEvent & event)
{
    if (m_gathering)
        m_gathered << event.GetString();
    else
        append(event.GetString());
}

void sglEdit::QueueEvent(wxEvent * event)
{
    if (!event || event->GetEventType() != sglEVT_WORKER_TEXT) {
        wxTextCtrl::QueueEvent(event);
        return;
    }
    bool pick_up;
    {
        std::scoped_lock const lock(m_waiting_lock);
        m_waiting.emplace_back(event);
        pick_up = !std::exchange(m_pick_up_is_due, true);
    }
    if (pick_up)
        wxTextCtrl::QueueEvent(new wxThreadEvent(EVT_TEXT_WAITING));
}

std::unique_ptr<wxEvent> sglEdit::next_waiting()
{
    std::scoped_lock const lock(m_waiting_lock);
    if (m_waiting.empty()) {
        m_pick_up_is_due = false;
        return nullptr;
    }
    auto event = std::move(m_waiting.front());
    m_waiting.pop_front();
    return event;
}

void sglEdit::gather_waiting(bool all)
{
    // A handler of one of the events may run an event loop and with it this operation; what has been gathered
    // so far is then appended there, ahead of the rest.
    wxStopWatch const watch;
    m_more_at_idle = false;
    ++m_gathering;
    while (auto const event = next_waiting()) {
        ProcessWindowEvent(*event);
        if (!all && (watch.Time() >= slice_milliseconds || m_gathered.length() >= slice_characters)) {
            m_more_at_idle = true;
            break;
        }
    }
    --m_gathering;
    append(std::exchange(m_gathered, wxString()));
    if (m_more_at_idle)
        wxWakeUpIdle();
}

void sglEdit::OnTextWaiting(wxThreadEvent &)
{
    gather_waiting(false);
}

void sglEdit::OnInternalIdle()
{
    wxTextCtrl::OnInternalIdle();
    if (m_more_at_idle)
        gather_waiting(false);
}

void sglEdit::append_waiting_text()
{
    gather_waiting(true);
}

void sglEdit::append(wxString const & text)
{
    if (text.empty())
        return;
    m_text_arrived = true;
    AppendText(sgl_shown_text(text));
}
