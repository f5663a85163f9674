#pragma once

#include "sglOptionsDialog.h"
#include "sglResourceDialogBuilder.h"
#include "sglResourceOptionsPage.h"

#include "vmr/vmrTableInstance.h"
#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <wx/combobox.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>

/// The panel of the options with what it keeps to itself.
struct kitOptionsPanel : sglOptionsDialog {
    using sglOptionsDialog::active_page;
    using sglOptionsDialog::caption_rectangle;
    using sglOptionsDialog::create_page;
    using sglOptionsDialog::sglOptionsDialog;
};

struct kitOptionsPage : sglResourceOptionsPage {
    using sglResourceOptionsPage::add_resource;
    using sglResourceOptionsPage::apply_changes;
    using sglResourceOptionsPage::apply_pressed;
    using sglResourceOptionsPage::cancel_pressed;
    using sglResourceOptionsPage::current_value;
    using sglResourceOptionsPage::default_value;
    using sglResourceOptionsPage::defaults_pressed;
    using sglResourceOptionsPage::do_update;
    using sglResourceOptionsPage::ok_pressed;
    using sglResourceOptionsPage::resource_is_available;
    using sglResourceOptionsPage::sglResourceOptionsPage;
    using sglResourceOptionsPage::validate_resource_value;
    using sglResourceOptionsPage::value_from_table;
};

/// Tests over a panel of options in a frame.
class kitOptionsTest : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame(wxSize(900, 700));
        // A frame gives all its room to an only child.
        auto * const host = new wxPanel(m_frame);
        m_frame->SendSizeEvent();
        m_panel = new kitOptionsPanel(host);
    }

    wxFrame * frame() { return m_frame; }
    kitOptionsPanel & panel() { return *m_panel; }

    /// A table loaded from a resource file with this text.
    void load(vmrTableInstance & table, std::string const & text)
    {
        table.initialise(utString(folder().write("test.rsc", text)));
    }
    kitOptionsPage * add_page(char const * name, sglOptionsPage * parent = nullptr,
                              vmrTableInstance * table = nullptr)
    {
        auto * const page = new kitOptionsPage(name, table, m_panel);
        page->set_parent(parent);
        m_panel->add_page(page);
        return page;
    }
    static void initialise(wxWindow & window)
    {
        wxInitDialogEvent event(window.GetId());
        event.SetEventObject(&window);
        window.ProcessWindowEvent(event);
    }
    void initialise() { initialise(*m_panel); }

    /// What stands on the screen where the window is.
    static wxImage picture_of(wxWindow & window)
    {
        wxClientDC dc(&window);
        wxSize const size = window.GetClientSize();
        wxBitmap bitmap(size.x, size.y);
        wxMemoryDC memory(bitmap);
        memory.Blit(0, 0, size.x, size.y, &dc, 0, 0);
        memory.SelectObject(wxNullBitmap);
        return bitmap.ConvertToImage();
    }

private:
    wxFrame * m_frame = nullptr;
    kitOptionsPanel * m_panel = nullptr;
};
