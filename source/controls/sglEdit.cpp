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

utString sglEdit::all_text_with_waiting() const
{
    utString const text = get_all_text() + wxtStringConverter::to_ut(sgl_shown_text(m_gathered));
    std::scoped_lock const lock(m_waiting_lock);
    return text + utString(std::string_view(m_waiting_text).substr(m_waiting_taken));
}

void sglEdit::discard_waiting_text()
{
    m_gathered.clear();
    std::scoped_lock const lock(m_waiting_lock);
    m_waiting.clear();
    m_waiting_text.clear();
    m_waiting_taken = 0;
}

bool sglEdit::IsModified() const
{
    if (m_text_arrived || wxTextCtrl::IsModified() || !m_gathered.empty())
        return true;
    std::scoped_lock const lock(m_waiting_lock);
    return m_waiting_taken < m_waiting_text.size();
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
    std::unique_ptr<wxCommandEvent> words(static_cast<wxCommandEvent *>(event));
    // Made here, in the thread of the worker, where the graphical thread would need long for all of them.
    std::string const text = wxtStringConverter::to_ut(sgl_shown_text(words->GetString())).str();
    bool pick_up;
    {
        std::scoped_lock const lock(m_waiting_lock);
        m_waiting.emplace_back(std::move(words), text.size());
        m_waiting_text += text;
        pick_up = !std::exchange(m_pick_up_is_due, true);
    }
    if (pick_up)
        wxTextCtrl::QueueEvent(new wxThreadEvent(EVT_TEXT_WAITING));
}

std::unique_ptr<wxCommandEvent> sglEdit::next_waiting()
{
    std::scoped_lock const lock(m_waiting_lock);
    if (m_waiting.empty()) {
        m_pick_up_is_due = false;
        m_waiting_text.clear();
        m_waiting_taken = 0;
        return nullptr;
    }
    auto [event, length] = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_waiting_taken += length;
    return std::move(event);
}

void sglEdit::gather_waiting()
{
    // A handler of one of the events may run an event loop. Nothing is gathered there: a pick-up is still due
    // here, and the flag for idle time is not set.
    wxStopWatch const watch;
    m_more_at_idle = false;
    m_gathering = true;
    while (auto const event = next_waiting()) {
        ProcessWindowEvent(*event);
        if (watch.Time() >= slice_milliseconds || m_gathered.length() >= slice_characters) {
            m_more_at_idle = true;
            break;
        }
    }
    m_gathering = false;
    append(std::exchange(m_gathered, wxString()));
    if (m_more_at_idle)
        wxWakeUpIdle();
}

void sglEdit::OnTextWaiting(wxThreadEvent &)
{
    gather_waiting();
}

void sglEdit::OnInternalIdle()
{
    wxTextCtrl::OnInternalIdle();
    if (m_more_at_idle)
        gather_waiting();
}

void sglEdit::append(wxString const & text)
{
    if (text.empty())
        return;
    m_text_arrived = true;
    AppendText(sgl_shown_text(text));
}
