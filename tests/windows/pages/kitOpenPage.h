#pragma once

#include "sglComboBox.h"
#include "sglGUIProgressDialog.h"
#include "sglListViewComboPopup.h"
#include "sglRow.h"
#include "sglTranslateDialog.h"
#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <wx/dnd.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>

/// The identifiers of the controls that all pages have.
struct kitPageIds {
    char const * input_list;
    char const * input_format;
    char const * input_resources;
    char const * input_browse;
    char const * output_list;
    char const * output_format;
    char const * output_resources;
    char const * output_browse;
    char const * translate;
};

inline constexpr kitPageIds kit_single_page{
    "IDC_SINGLE_INPUT_FILENAME",   "IDC_SINGLE_INPUT_FORMAT",    "IDC_SINGLE_INPUT_RESOURCES",
    "IDC_SINGLE_INPUT_BROWSE",     "IDC_SINGLE_OUTPUT_FILENAME", "IDC_SINGLE_OUTPUT_FORMAT",
    "IDC_SINGLE_OUTPUT_RESOURCES", "IDC_SINGLE_OUTPUT_BROWSE",   "IDC_SINGLE_TRANSLATE"};
inline constexpr kitPageIds kit_merge_page{
    "IDC_MULTIPLE_INPUT_FILENAME",   "IDC_MULTIPLE_INPUT_FORMAT",    "IDC_MULTIPLE_INPUT_RESOURCES",
    "IDC_MULTIPLE_INPUT_BROWSE",     "IDC_MULTIPLE_OUTPUT_FILENAME", "IDC_MULTIPLE_OUTPUT_FORMAT",
    "IDC_MULTIPLE_OUTPUT_RESOURCES", "IDC_MULTIPLE_OUTPUT_BROWSE",   "IDC_MULTIPLE_TRANSLATE"};
inline constexpr kitPageIds kit_batch_page{
    "IDC_BATCH_INPUT_FILE_LIST",        "IDC_BATCH_INPUT_FORMAT_COMBO",   "IDC_BATCH_INPUT_RESOURCE_BUTTON",
    "IDC_BATCH_INPUT_BROWSE_BUTTON",    "IDC_BATCH_OUTPUT_FILE_LIST",     "IDC_BATCH_OUTPUT_FORMAT_COMBO",
    "IDC_BATCH_OUTPUT_RESOURCE_BUTTON", "IDC_BATCH_OUTPUT_BROWSE_BUTTON", "IDC_BATCH_TRANSLATE_BUTTON"};

/// A page in a notebook, as the main window holds it. The formats are those of the build tree.
class kitOpenPageTest : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        std::filesystem::remove_all(user_folder() + "/resources");
        m_frame = show_frame(wxSize(900, 800));
        m_notebook = new wxNotebook(m_frame, wxID_ANY, wxPoint(), m_frame->GetClientSize());
    }
    template <class Page>
    Page * open(kitPageIds const & ids)
    {
        auto * const page = new Page(m_notebook);
        EXPECT_TRUE(page->create());
        m_notebook->AddPage(page, wxtStringConverter::to_wx(page->caption()), false, -1);
        m_frame->SendSizeEvent();
        settle();
        m_page = page;
        m_ids = ids;
        return page;
    }

    /// What the toolkit tells the target when files are dropped on a window.
    static void drop_on(wxWindow & window, std::vector<std::string> const & names)
    {
        wxArrayString files;
        for (auto const & name : names)
            files.Add(wxtStringConverter::path_to_wx(utString(name)));
        auto * const target = dynamic_cast<wxFileDropTarget *>(window.GetDropTarget());
        ASSERT_TRUE(target);
        EXPECT_TRUE(target->OnDropFiles(1, 1, files));
        settle();
    }
    void drop(std::vector<std::string> const & names) { drop_on(list(m_ids.input_list), names); }

    void browse_input(std::string const & file)
    {
        kitModal boxes;
        boxes.expect_file(file);
        press(*m_page, m_ids.input_browse);
    }
    void browse_output(std::string const & file)
    {
        kitModal boxes;
        boxes.expect_file(file);
        press(*m_page, m_ids.output_browse);
    }
    /// Opens the list of a format box, chooses a row in it, or none, and closes it.
    void choose(char const * box_id, std::string const & format)
    {
        auto & chosen = box(box_id);
        chosen.Popup();
        run_until([&] { return chosen.IsPopupShown(); }, 20, "the list of formats");
        settle();
        if (!format.empty())
            const_cast<sglListViewComboPopup *>(chosen.popup())
                ->SetStringValue(wxtStringConverter::to_wx(std::string_view(format)));
        chosen.HidePopup(true);
        run_until([&] { return !chosen.IsPopupShown(); }, 20, "the list of formats to close");
        settle();
    }

    wxListCtrl & list(char const * id) { return *find<wxListCtrl>(*m_page, id); }
    sglComboBox & box(char const * id) { return *find<sglComboBox>(*m_page, id); }
    bool enabled(char const * id) { return find<wxWindow>(*m_page, id)->IsEnabled(); }
    bool can_translate() { return enabled(m_ids.translate); }
    std::string cell(char const * id, int column, int row = 0)
    {
        auto const & shown = list(id);
        return row < shown.GetItemCount() ? shown.GetItemText(row, column).utf8_string() : "";
    }
    std::string input_file() { return cell(m_ids.input_list, 0); }
    std::string input_resource() { return cell(m_ids.input_list, 1); }
    std::string output_file() { return cell(m_ids.output_list, 0); }
    std::string input_format() { return box(m_ids.input_format).selected_item().str(); }
    std::string output_format() { return box(m_ids.output_format).selected_item().str(); }
    static std::string unknown() { return unknown_format().str(); }

    /// A file that is known by its first line; no translator can read more of it.
    std::string step_file(std::string const & name) const
    {
        return folder().write(name, "ISO-10303-21;\nHEADER;\n");
    }
    std::string iges_file(std::string const & name) const
    {
        std::string line(72, ' ');
        line += "S      1\n";
        return folder().write(name, line);
    }
    /// One of the installed samples, copied into the folder of the test.
    std::string sample(std::string const & name, std::string const & as) const
    {
        std::filesystem::copy_file("/usr/share/opencascade/data/" + name, folder() / as);
        return folder() / as;
    }
    static bool have_samples() { return std::filesystem::exists("/usr/share/opencascade/data/step"); }

    static sglGUIProgressDialog * progress_dialog()
    {
        for (wxWindow * const window : wxTopLevelWindows)
            if (auto * const dialog = dynamic_cast<sglGUIProgressDialog *>(window))
                return dialog;
        return nullptr;
    }
    /// Presses Translate, waits for the end in front of the dialog and presses OK there.
    void translate()
    {
        m_frame->CallAfter([] {
            sglGUIProgressDialog * dialog = nullptr;
            run_until(
                [&] {
                    dialog = progress_dialog();
                    return dialog && dialog->IsShownOnScreen();
                },
                20, "the dialog of the translation");
            if (!dialog)
                return;
            run_until([&] { return find<wxWindow>(*dialog, "IDC_PROGRESS_OK")->IsEnabled(); }, 100,
                      "the end of the translation");
            press(*dialog, "IDC_PROGRESS_OK");
        });
        press(*m_page, m_ids.translate);
        settle();
    }
    static sdbTranslationData const & last_record()
    {
        return *app().translation_details(app().num_translations() - 1);
    }
    /// Runs `script` in the loop of the next dialog of the program, once that is on the screen.
    void in_next_dialog(std::function<void(wxDialog &)> const & script)
    {
        m_frame->CallAfter([script] {
            wxDialog * shown = nullptr;
            run_until(
                [&] {
                    for (wxWindow * const window : wxTopLevelWindows)
                        if (auto * const dialog = dynamic_cast<wxDialog *>(window);
                            dialog && dialog->IsModal() && dialog->IsShownOnScreen())
                            shown = dialog;
                    return shown != nullptr;
                },
                20, "the dialog");
            settle();
            if (shown)
                script(*shown);
        });
    }

    wxFrame * m_frame = nullptr;
    wxNotebook * m_notebook = nullptr;
    sglTranslateDialog * m_page = nullptr;
    kitPageIds m_ids{};
};
