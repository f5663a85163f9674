#pragma once

#include "sglMenu.h"
#include "sglResourceHandler.h"
#include "sglResources.h"

#include "sdb/sdbTranslatorLoadStatus.h"
#include "vmr/coResourceIterator.h"
#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <wx/checkbox.h>
#include <wx/menu.h>
#include <wx/stattext.h>
#include <wx/treectrl.h>

/// The dialog with what it keeps to itself.
class kitResources : public sglResources {
public:
    kitResources(vmrTableInstance & table, wxWindow * parent, sdbTranslatorInfo const * info,
                 unsigned int type = sglResourceDialogBuilder::output)
        : sglResources(table, parent, info, sglApp::app().application_information(), "DLG_RESOURCES")
    {
        dialog_type(type);
    }
    /// Without a window.
    kitResources(vmrTableInstance & table, sdbTranslatorInfo const * info)
        : sglResources(table, info, sglApp::app().application_information())
    {
    }

    using sglResources::do_on_factory_settings;
    using sglResources::is_default_rsc_file;
    using sglResources::Load;
    using sglResources::Save;
    using sglResources::update_name;
    using sglResources::working_table;
};

/// Tests over the options of STEP files, with the installation of the build tree and no files of the user's.
class kitResourcesTest : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        std::filesystem::remove_all(user_resources());
        // Other tests of the process look for layouts elsewhere.
        auto const path =
            app().file_locator().search_path(sdbHRKDirectory::resources).ut_path_string(nullptr);
        const_cast<vmrabsAppInfo *>(app().application_information())->set_schema_path("resources", path);
        m_frame = show_frame(wxSize(900, 700));
        m_step = app().output_dlls().translator_for_format("STEP");
        ASSERT_TRUE(m_step);
        sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
        m_step->load(status);
        m_table.initialise(installed());
    }
    void TearDown() override
    {
        kitWindowTest::TearDown();
        std::filesystem::remove_all(user_resources());
    }

    static std::string user_resources() { return user_folder() + "/resources"; }
    static std::string user_copy() { return user_resources() + "/step.rsc"; }
    utString installed() const { return app().installation_resource_file(*m_step); }
    static std::string read(utString const & file) { return kit_read_file(file.str()); }

    /// What a table loaded from the file gives for a resource.
    static std::string value_in(utString const & file, char const * name)
    {
        vmrTableInstance const table(file.c_str());
        return table.effective_value(name).str();
    }
    static std::string value(vmrTableInstance const & table, char const * name)
    {
        return table.effective_value(name).str();
    }
    static bool has_override(vmrTableInstance const & table, char const * name)
    {
        coResourceKeyBase const key{utString(name)};
        return table.table() && table.table()->lookup_resource(&key);
    }

    /// Shows the dialog, runs the script in it, and gives how it ended; a script that leaves it open cancels.
    int show(kitResources & dialog, std::function<void()> const & script)
    {
        return show_modal(dialog, [&] {
            script();
            if (dialog.IsModal())
                press(dialog, "IDC_OPTIONS_CANCEL");
        });
    }

    static wxCheckBox * check_box(wxWindow & window, char const * label)
    {
        for (wxWindow * const child : window.GetChildren()) {
            auto * const box = dynamic_cast<wxCheckBox *>(child);
            if (box && box->GetLabelText() == label)
                return box;
            if (auto * const found = check_box(*child, label))
                return found;
        }
        return nullptr;
    }
    /// The field of that label, on whatever page it is, which is shown.
    static wxTextCtrl * edit_box(wxWindow & dialog, char const * label)
    {
        auto * const field = field_of(dialog, label);
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_OPTIONS_TREE");
        wxTreeItemIdValue cookie;
        for (auto item = tree.GetFirstChild(tree.GetRootItem(), cookie); field && item.IsOk();
             item = next_item(tree, item)) {
            if (field->IsShownOnScreen())
                break;
            tree.SelectItem(item);
        }
        return field;
    }
    /// Clicks the check box of that label on whatever page it is.
    static void toggle(wxWindow & dialog, char const * label)
    {
        auto * const box = check_box(dialog, label);
        ASSERT_TRUE(box) << label;
        box->SetValue(!box->GetValue());
        wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
        event.SetEventObject(box);
        event.SetInt(box->GetValue());
        box->ProcessWindowEvent(event);
    }

    /// Opens the menu of the dialog, looks at it and closes it again.
    static void look_at_menu(kitResources & dialog, std::function<void(wxMenu &)> const & look)
    {
        bool looked = false;
        dialog.Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent & event) {
            if (!std::exchange(looked, true))
                look(*event.GetMenu());
            dialog.CallAfter([] { wxUIActionSimulator().Char(WXK_ESCAPE); });
        });
        press(dialog, "IDC_RESOURCES_FILE_MENU");
        EXPECT_TRUE(looked);
    }
    static bool save_is_enabled(kitResources & dialog)
    {
        bool enabled = false;
        look_at_menu(dialog, [&](wxMenu & menu) { enabled = menu.IsEnabled(XRCID("IDM_OPTIONS_SAVE")); });
        return enabled;
    }

private:
    static bool is_label(wxWindow const & window, char const * text)
    {
        auto const * const label = dynamic_cast<wxStaticText const *>(&window);
        return label && label->GetLabelText() == text;
    }
    static wxTextCtrl * field_of(wxWindow & window, char const * label)
    {
        wxTextCtrl * before = nullptr; // a label is made after its field
        for (wxWindow * const child : window.GetChildren()) {
            if (before && is_label(*child, label))
                return before;
            before = dynamic_cast<wxTextCtrl *>(child);
            if (auto * const found = field_of(*child, label))
                return found;
        }
        return nullptr;
    }
    static wxTreeItemId next_item(wxTreeCtrl & tree, wxTreeItemId item)
    {
        wxTreeItemIdValue cookie;
        if (tree.ItemHasChildren(item))
            return tree.GetFirstChild(item, cookie);
        for (; item.IsOk() && item != tree.GetRootItem(); item = tree.GetItemParent(item))
            if (auto const next = tree.GetNextSibling(item); next.IsOk())
                return next;
        return {};
    }

protected:
    wxFrame * m_frame = nullptr;
    sdbTranslatorInfo const * m_step = nullptr;
    vmrTableInstance m_table; // the caller's
};
