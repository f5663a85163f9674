#pragma once

#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include <wx/textctrl.h>

#include "ut/utString.h"

/// A wxCommandEvent whose string a worker thread has for a pane.
wxDECLARE_EVENT(sglEVT_WORKER_TEXT, wxCommandEvent);

/// The text pane of the progress and report dialogs. A worker thread feeds it by queueing sglEVT_WORKER_TEXT
/// events; it may be locked against the mouse; and it may have a context menu from the XRC files.
///
/// Each event is processed by itself and in order, but the texts of many are appended together, and after a
/// few milliseconds the user's own events take their turn, so that a flood of messages leaves the window
/// alive. Graphical thread, apart from QueueEvent.
class sglEdit : public wxTextCtrl {
public:
    sglEdit() = default;
    sglEdit(wxWindow * parent, wxWindowID id, wxString const & value = wxString(),
            wxPoint const & position = wxDefaultPosition, wxSize const & size = wxDefaultSize,
            long style = 0);
    ~sglEdit() override;

    void editable(int editable) { m_editable = editable; } ///< 0, as at first: the mouse does nothing
    void set_context_menu(utString const & menu_name) { m_context_menu = menu_name; }
    utString get_all_text() const; ///< empty, and never invalid, for an empty pane

    /// The same with all that is queued and not shown yet, which is shown in its turn: a control needs far
    /// longer for a large text than it takes to know it.
    utString all_text_with_waiting() const;
    void discard_waiting_text(); ///< as if it had never been queued

    /// True as soon as text has arrived, whichever way and even if it is not shown yet.
    bool IsModified() const override;
    void DiscardEdits() override;

    /// A pane of several lines has no limit on this platform, and asking for one changes nothing.
    void SetMaxLength(unsigned long length) override;

    void QueueEvent(wxEvent * event) override; ///< any thread; takes the event over

    void OnInternalIdle() override;

protected:
    void OnLButtonDown(wxMouseEvent & event);
    void OnLButtonDblClk(wxMouseEvent & event);
    void OnRButtonDown(wxMouseEvent & event);
    void OnContextMenu(wxContextMenuEvent & event);
    void OnWorkerThreadText(wxCommandEvent & event);

private:
    void OnTextWaiting(wxThreadEvent & event);
    void pop_up_menu(wxPoint position);
    std::unique_ptr<wxCommandEvent> next_waiting();
    void gather_waiting();
    void append(wxString const & text);

    int m_editable = 0;
    utString m_context_menu = utString::make_invalid();

    mutable std::mutex m_waiting_lock;
    /// Under the lock: the events, each with the length of its text in the next.
    std::deque<std::pair<std::unique_ptr<wxCommandEvent>, std::size_t>> m_waiting;
    std::string m_waiting_text;      // under the lock: what the control will show of them, as UTF-8
    std::size_t m_waiting_taken = 0; // under the lock: how much of that belongs to events that are taken
    bool m_pick_up_is_due = false;   // under the lock: an event or idle time will take them
    bool m_more_at_idle = false;
    bool m_gathering = false;
    wxString m_gathered;
    bool m_text_arrived = false;

    wxDECLARE_DYNAMIC_CLASS(sglEdit);
    wxDECLARE_EVENT_TABLE();
};
