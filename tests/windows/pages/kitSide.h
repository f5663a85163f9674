#pragma once

#include "sglComboBox.h"
#include "sglFileDialog.h"
#include "sglRow.h"

#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <wx/listctrl.h>

/// One side of a page: its three controls, filled with the formats of the installation, and their controller.
class kitSideTest : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        std::filesystem::remove_all(user_resources());
        m_frame = show_frame();
        m_list = new wxListCtrl(m_frame, wxID_ANY, wxPoint(10, 10), wxSize(600, 80), wxLC_REPORT);
        m_box = new sglComboBox;
        m_box->create(m_frame, wxID_ANY, "", wxPoint(10, 100), wxSize(240, -1), wxCB_READONLY,
                      wxDefaultValidator, "box");
        m_button = new wxButton(m_frame, wxID_ANY, "Options", wxPoint(10, 150));
        for (auto const & name : formats())
            m_box->Append(wxtStringConverter::to_wx(name));
        m_box->add_and_select_unknown();
    }
    void TearDown() override
    {
        kitWindowTest::TearDown();
        std::filesystem::remove_all(user_resources());
        for (char const * field :
             {"preferred_input_format", "preferred_output_format", "default_save_directory"})
            app().startup_info().add_field_without_saving(field, utString::make_invalid());
    }

    static std::vector<utString> formats()
    {
        std::vector<utString> names;
        for (auto name = app().input_dlls().formats(); ++name;)
            names.push_back(name().ut_string());
        return names;
    }
    static std::string user_resources() { return user_folder() + "/resources"; }

    /// The controller over the three controls.
    sglFileDialog side(unsigned int type)
    {
        sglFileDialog dialog(m_frame, app().application_information());
        dialog.set_list_control(m_list);
        dialog.set_combo_box(m_box);
        dialog.set_resource_button(m_button);
        dialog.set_type(type);
        dialog.initialise();
        return dialog;
    }
    std::string shown() const { return m_box->GetValue().utf8_string(); }
    std::string cell(int column) const { return m_list->GetItemText(0, column).utf8_string(); }
    /// A STEP file that is known by its first line.
    std::string step_file(std::string const & name) const
    {
        return folder().write(name, "ISO-10303-21;\nHEADER;\n");
    }

    wxFrame * m_frame = nullptr;
    wxListCtrl * m_list = nullptr;
    sglComboBox * m_box = nullptr;
    wxButton * m_button = nullptr;
};
