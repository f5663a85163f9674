#include "screens/fit.h"

#include <wx/listctrl.h>
#include <wx/notebook.h>
#include <wx/scrolwin.h>
#include <wx/wx.h>

namespace {

std::string named(wxWindow const & window)
{
    wxString const text = window.GetLabel().empty() ? window.GetName() : window.GetLabel();
    wxRect const rect = window.GetRect();
    return wxString::Format("%s \"%s\" at %d, %d, %d by %d", window.GetClassInfo()->GetClassName(), text,
                            rect.x, rect.y, rect.width, rect.height)
        .utf8_string();
}

/// Bears a text that is to be seen whole.
bool is_labelled(wxWindow const & window)
{
    return wxDynamicCast(&window, wxStaticText) || wxDynamicCast(&window, wxButton) ||
           wxDynamicCast(&window, wxCheckBox) || wxDynamicCast(&window, wxRadioButton) ||
           wxDynamicCast(&window, wxChoice);
}

bool may_be_shorter(wxWindow const & window)
{
    return window.HasFlag(wxST_ELLIPSIZE_START | wxST_ELLIPSIZE_MIDDLE | wxST_ELLIPSIZE_END) &&
           wxDynamicCast(&window, wxStaticText);
}

/// The headings of a list, which the toolkit draws with a little room beside them.
void look_at_headings(wxListCtrl & list, std::vector<std::string> & faults)
{
    int const room = 8;
    for (int number = 0; number < list.GetColumnCount(); ++number) {
        wxListItem heading;
        heading.SetMask(wxLIST_MASK_TEXT);
        list.GetColumn(number, heading);
        int const needed = list.GetTextExtent(heading.GetText()).x + room;
        if (list.HasFlag(wxLC_REPORT) && needed > list.GetColumnWidth(number))
            faults.push_back("heading \"" + heading.GetText().utf8_string() + "\" needs " +
                             std::to_string(needed) + " of " + std::to_string(list.GetColumnWidth(number)));
    }
}

/// Draws itself inside others, so that its children may lie anywhere.
bool is_frame_of_others(wxWindow const & window)
{
    return wxDynamicCast(&window, wxStaticBox) || wxDynamicCast(&window, wxTopLevelWindow);
}

bool looks_for_children_itself(wxWindow const & window)
{
    return wxDynamicCast(&window, wxListCtrl) || wxDynamicCast(&window, wxBookCtrlBase) ||
           dynamic_cast<wxScrolledWindow const *>(&window);
}

void look_at(wxWindow & window, std::vector<std::string> & faults)
{
    if (is_labelled(window) && !may_be_shorter(window)) {
        window.InvalidateBestSize();
        wxSize const best = window.GetBestSize(), size = window.GetSize();
        if (best.x > size.x || best.y > size.y)
            faults.push_back(named(window) + " needs " + std::to_string(best.x) + " by " +
                             std::to_string(best.y));
    }
    if (auto * const list = wxDynamicCast(&window, wxListCtrl); list && !list->HasFlag(wxLC_NO_HEADER))
        look_at_headings(*list, faults);
    std::vector<wxWindow *> seen;
    for (wxWindow * const child : window.GetChildren()) {
        // The bar of a frame lies below its client area.
        if (!child->IsShown() || child->IsTopLevel() || wxDynamicCast(child, wxStatusBar))
            continue;
        look_at(*child, faults);
        if (looks_for_children_itself(window) || is_frame_of_others(*child))
            continue;
        wxRect const place = child->GetRect();
        if (!wxRect(window.GetClientSize()).Contains(place) && !place.IsEmpty())
            faults.push_back(named(*child) + " sticks out of " + named(window));
        for (wxWindow * const other : seen)
            if (place.Intersects(other->GetRect()))
                faults.push_back(named(*child) + " lies over " + named(*other));
        seen.push_back(child);
    }
}

} // namespace

std::vector<std::string> what_is_cut_off(wxWindow & window)
{
    std::vector<std::string> faults;
    look_at(*wxGetTopLevelParent(&window), faults);
    return faults;
}
