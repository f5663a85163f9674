#pragma once

#include "sglComboBox.h"
#include "sglTranslateDialog.h"

#include "windows/kit/kitXrc.h"

#include <wx/button.h>
#include <wx/listctrl.h>

/// A page of one input and one output, with what the pages share within reach of a test.
class kitPage : public sglTranslateDialog {
public:
    explicit kitPage(wxWindow * parent) : sglTranslateDialog(parent) { m_caption = "Test"; }

    /// The panel of the page, for a kitXrc.
    static char const * resources()
    {
        return R"(<object class="wxPanel" name="KIT_PAGE">
            <object class="wxListCtrl" name="KIT_IN"><pos>5,5</pos><size>500,60</size><style>wxLC_REPORT</style></object>
            <object class="sglComboBox" name="KIT_IN_FORMAT"><pos>5,70</pos><size>200,-1</size><style>wxCB_READONLY</style></object>
            <object class="wxButton" name="KIT_IN_OPTIONS"><pos>5,110</pos><label>d.test::Options of the input</label></object>
            <object class="wxListCtrl" name="KIT_OUT"><pos>5,160</pos><size>500,60</size><style>wxLC_REPORT</style></object>
            <object class="sglComboBox" name="KIT_OUT_FORMAT"><pos>5,225</pos><size>200,-1</size><style>wxCB_READONLY</style></object>
            <object class="wxButton" name="KIT_OUT_OPTIONS"><pos>5,265</pos><label>Options</label></object>
            <object class="wxButton" name="KIT_TRANSLATE"><pos>5,300</pos><label>Translate</label></object></object>)";
    }

    void handle_dropped_files(wxArrayString const & files) override { dropped = files; }

    using sglTranslateDialog::enableTranslateButton;
    using sglTranslateDialog::fill_output_fields;
    using sglTranslateDialog::m_input_combo;
    using sglTranslateDialog::m_input_details;
    using sglTranslateDialog::m_input_list;
    using sglTranslateDialog::m_input_resource_button;
    using sglTranslateDialog::m_output_combo;
    using sglTranslateDialog::m_output_list;
    using sglTranslateDialog::m_output_resource_button;
    using sglTranslateDialog::m_translate_button;
    using sglTranslateDialog::m_user_edited;
    using sglTranslateDialog::OnInputBrowse;
    using sglTranslateDialog::OnOutputBrowse;
    using sglTranslateDialog::OnTranslate;
    using sglTranslateDialog::set_resource_file;

    wxArrayString dropped;
    sglRow input, output;
    int inputs = 1;
    bool has_children = true;

protected:
    int find_children() override
    {
        m_input_list = XRCCTRL(*this, "KIT_IN", wxListCtrl);
        m_output_list = XRCCTRL(*this, "KIT_OUT", wxListCtrl);
        m_input_combo = XRCCTRL(*this, "KIT_IN_FORMAT", sglComboBox);
        m_output_combo = XRCCTRL(*this, "KIT_OUT_FORMAT", sglComboBox);
        m_input_resource_button = XRCCTRL(*this, "KIT_IN_OPTIONS", wxButton);
        m_output_resource_button = XRCCTRL(*this, "KIT_OUT_OPTIONS", wxButton);
        m_translate_button = XRCCTRL(*this, "KIT_TRANSLATE", wxButton);
        return has_children ? 1 : 0;
    }
    utString resource_id() const override { return "KIT_PAGE"; }
    char const * tag() const override { return "vmrgrlib"; }
    int num_input_rows() const override { return inputs; }
    sglRow const & input_row(int) const override { return input; }
    int num_output_rows() const override { return 1; }
    sglRow const & output_row(int) const override { return output; }
};
