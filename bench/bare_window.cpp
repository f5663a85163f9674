// A frame of the toolkit with a menu bar, a notebook and as many controls as the main window has: what the
// start of that window is compared with.

#include <wx/combo.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>
#include <wx/statbox.h>
#include <wx/wx.h>

namespace {

class List : public wxListView, public wxComboPopup {
public:
    bool Create(wxWindow * parent) override
    {
        return wxListView::Create(parent, 1, wxPoint(), wxDefaultSize, wxLC_REPORT | wxLC_NO_HEADER);
    }
    wxWindow * GetControl() override { return this; }
    void SetStringValue(wxString const &) override {}
    wxString GetStringValue() const override { return wxString(); }
};

class Page : public wxPanel {
public:
    Page(wxWindow * parent, bool with_files, bool with_queue) : wxPanel(parent)
    {
        auto * const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(side("Input File"), 0, wxEXPAND | wxALL, 5);
        if (with_files || with_queue)
            sizer->Add(middle(with_queue), 1, wxEXPAND | wxALL, 5);
        sizer->Add(side("Output File"), 0, wxEXPAND | wxALL, 5);
        sizer->Add(new wxButton(this, wxID_ANY, "Translate"), 0, wxALIGN_RIGHT | wxALL, 5);
        SetSizer(sizer);
    }

private:
    wxListCtrl * list()
    {
        auto * const made = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(400, 70),
                                           wxLC_REPORT | wxLC_SINGLE_SEL | wxBORDER_SIMPLE);
        made->InsertColumn(0, "File Name", wxLIST_FORMAT_LEFT, 304);
        made->InsertColumn(1, "Resource", wxLIST_FORMAT_LEFT, 103);
        return made;
    }
    wxButton * button(char const * label) { return new wxButton(this, wxID_ANY, label); }
    wxSizer * side(char const * title)
    {
        auto * const box = new wxStaticBoxSizer(wxVERTICAL, this, title);
        auto * const grid = new wxFlexGridSizer(2, 5, 5);
        grid->AddGrowableCol(0);
        grid->Add(list(), 0, wxEXPAND);
        grid->Add(button("Browse..."));
        auto * const formats = new wxBoxSizer(wxHORIZONTAL);
        formats->Add(new wxStaticText(this, wxID_ANY, "Format:"), 0, wxALIGN_CENTRE_VERTICAL | wxRIGHT, 5);
        auto * const combo = new wxComboCtrl(this, wxID_ANY, "unknown format", wxDefaultPosition,
                                             wxDefaultSize, wxCB_READONLY);
        auto * const formats_list = new List;
        combo->UseAltPopupWindow(true);
        combo->SetPopupControl(formats_list);
        formats_list->InsertColumn(0, "");
        for (char const * const name : {"BREP", "IGES", "STEP", "STL"})
            formats_list->InsertItem(formats_list->GetItemCount(), name);
        formats->Add(combo, 1, wxALIGN_CENTRE_VERTICAL);
        grid->Add(formats, 0, wxEXPAND);
        grid->Add(button("Resources..."));
        box->Add(grid, 0, wxEXPAND | wxALL, 3);
        return box;
    }
    wxSizer * middle(bool with_queue)
    {
        auto * const box = new wxStaticBoxSizer(wxHORIZONTAL, this, "Files");
        if (with_queue)
            box->Add(new wxListBox(this, wxID_ANY), 1, wxEXPAND);
        else
            box->Add(list(), 1, wxEXPAND);
        auto * const buttons = new wxBoxSizer(wxVERTICAL);
        buttons->Add(button("Add"));
        if (with_queue)
            buttons->Add(button("Save Changes"));
        buttons->Add(button("Remove"));
        box->Add(buttons);
        return box;
    }
};

class App : public wxApp {
    bool OnInit() override
    {
        auto * const frame = new wxFrame(nullptr, wxID_ANY, "bare");
        frame->SetSize(frame->ConvertDialogToPixels(wxSize(450, 380)));
        auto * const bar = new wxMenuBar;
        int const items[] = {3, 6, 5, 6};
        char const * const titles[] = {"&File", "&Edit", "&View", "&Help"};
        for (int menu = 0; menu < 4; ++menu) {
            auto * const made = new wxMenu;
            for (int item = 0; item < items[menu]; ++item)
                made->Append(wxID_ANY, wxString::Format("Item %d", item));
            bar->Append(made, titles[menu]);
        }
        frame->SetMenuBar(bar);
        auto * const pages = new wxNotebook(frame, wxID_ANY);
        pages->AddPage(new Page(pages, false, false), "Single File");
        pages->AddPage(new Page(pages, true, false), "Multiple Files");
        pages->AddPage(new Page(pages, false, true), "Batch Files");
        auto * const sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(pages, 1, wxEXPAND | wxALL, 5);
        sizer->Add(new wxButton(frame, wxID_CLOSE, "Close"), 0, wxALIGN_RIGHT | wxALL, 5);
        frame->SetSizer(sizer);
        frame->Layout();
        frame->Show();
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP(App);
