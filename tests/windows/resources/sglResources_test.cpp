#include "windows/kit/kitHelpFolder.h"
#include "windows/resources/kitResources.h"

#include "sglDialogMenu.h"
#include "sglOptionsDialog.h"

#include <wx/stattext.h>

namespace {

using ResourcesDialog = kitResourcesTest;

} // namespace

TEST_F(ResourcesDialog, GivesTheNewValuesToTheCallerWithOk)
{
    kitResources dialog(m_table, m_frame, m_step);
    EXPECT_EQ(show(dialog,
                   [&] {
                       toggle(dialog, "Names");
                       press(dialog, "IDC_OPTIONS_OK");
                   }),
              wxID_OK);
    EXPECT_EQ(value(m_table, "stepWriteNames"), "false");
    EXPECT_EQ(m_table.resource_file(), installed());
    EXPECT_FALSE(std::filesystem::exists(user_copy()));
}

TEST_F(ResourcesDialog, LeavesTheCallersTableAloneWhenCancelledAfterApply)
{
    kitResources dialog(m_table, m_frame, m_step);
    EXPECT_EQ(show(dialog,
                   [&] {
                       toggle(dialog, "Names");
                       press(dialog, "IDC_OPTIONS_APPLY");
                       EXPECT_EQ(value(dialog.working_table(), "stepWriteNames"), "false");
                       press(dialog, "IDC_OPTIONS_CANCEL");
                   }),
              wxID_CANCEL);
    EXPECT_EQ(value(m_table, "stepWriteNames"), "true");
    EXPECT_FALSE(m_table.modified());
}

TEST_F(ResourcesDialog, IsCancelledByEscape)
{
    kitResources dialog(m_table, m_frame, m_step);
    EXPECT_EQ(show_modal(dialog, [&] { key(WXK_ESCAPE); }), wxID_CANCEL);
}

TEST_F(ResourcesDialog, OpensItsMenuFromTheLabelAndFromTheKeyboard)
{
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        int opened = 0;
        dialog.Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent & event) {
            ++opened;
            EXPECT_EQ(event.GetMenu()->GetMenuItemCount(), 10u);
            dialog.CallAfter([] { wxUIActionSimulator().Char(WXK_ESCAPE); });
        });
        click(*find<sglDialogMenu>(dialog, "IDC_RESOURCES_FILE_MENU"));
        EXPECT_EQ(opened, 1);
        key('F', wxMOD_ALT);
        run_until([&] { return opened == 2; }, 20, "the menu");
    });
}

TEST_F(ResourcesDialog, OffersExportSystemsForOutputOnly)
{
    for (unsigned int const type : {sglResourceDialogBuilder::input, sglResourceDialogBuilder::output}) {
        kitResources dialog(m_table, m_frame, m_step, type);
        show(dialog, [&] {
            look_at_menu(dialog, [&](wxMenu & menu) {
                EXPECT_EQ(menu.FindItem(XRCID("IDM_OPTIONS_EXPORT_TO")) != nullptr,
                          type == sglResourceDialogBuilder::output);
                for (char const * id :
                     {"LOAD_DEFAULT", "LOAD_CUSTOM", "SAVE", "SAVE_AS", "SCRAP_CHANGES", "FACTORY_RESET"})
                    EXPECT_TRUE(menu.FindItem(wxXmlResource::GetXRCID("IDM_OPTIONS_" + wxString(id)))) << id;
            });
        });
    }
}

TEST_F(ResourcesDialog, SaysInItsTitleWhichFileItEdits)
{
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        EXPECT_EQ(dialog.GetTitle(), "Output Resources - step.rsc");
        dialog.update_name("/somewhere/my.rsc");
        EXPECT_EQ(dialog.GetTitle(), "Output Resources - /somewhere/my.rsc");
    });
    kitResources input(m_table, m_frame, m_step, sglResourceDialogBuilder::input);
    show(input, [&] { EXPECT_EQ(input.GetTitle(), "Input Resources - step.rsc"); });
}

TEST_F(ResourcesDialog, SpreadsFourButtonsAndHidesTheFifth)
{
    kitResources dialog(m_table, m_frame, m_step);
    auto const place = [&](char const * id) { return find<wxWindow>(dialog, id)->GetRect(); };
    wxRect const ok = place("IDC_OPTIONS_OK"), help = place("IDC_OPTIONS_HELP");
    int const w = ok.width;
    int const g = place("IDC_OPTIONS_CANCEL").x - ok.x - w + 1;
    int const left = place("IDC_OPTIONS_DEFAULTS").x, right = help.x + help.width - 1;
    show(dialog, [&] {
        EXPECT_FALSE(find<wxWindow>(dialog, "IDC_OPTIONS_DEFAULTS")->IsShown());
        int x = left + (right - left - (3 * g + 4 * w)) / 2;
        EXPECT_GT(x, left) << "the four do not begin where the five did";
        for (char const * id :
             {"IDC_OPTIONS_OK", "IDC_OPTIONS_CANCEL", "IDC_OPTIONS_APPLY", "IDC_OPTIONS_HELP"}) {
            EXPECT_EQ(place(id).GetPosition(), wxPoint(x, ok.y)) << id;
            x += w + g;
        }
    });
}

TEST_F(ResourcesDialog, PutsThePanelAtItsMarkerWithRoomForAllOfIt)
{
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        auto const * const marker = dialog.FindWindow(XRCID("IDC_RESOURCES_COORDINATES"));
        EXPECT_FALSE(marker->IsShown());
        wxWindow const * panel = nullptr;
        for (wxWindow * const child : dialog.GetChildren())
            if (auto * const found = dynamic_cast<sglOptionsDialog *>(child))
                panel = found;
        ASSERT_TRUE(panel);
        EXPECT_EQ(panel->GetPosition(), marker->GetPosition());
        EXPECT_TRUE(dialog.GetClientRect().Contains(panel->GetRect()));
        auto const * const menu = dialog.FindWindow(XRCID("IDC_RESOURCES_FILE_MENU"));
        EXPECT_FALSE(menu->GetRect().Intersects(panel->GetRect()));
    });
}

TEST_F(ResourcesDialog, ClosesAtOnceWithABrokenLayoutAndLeavesTheTable)
{
    m_table.add_resource("stepWriteNames", "false");
    std::filesystem::create_directories(user_resources());
    std::ofstream(user_resources() + "/resource_layout.txt") << "start_page\nrubbish\n";
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    kitResources dialog(m_table, m_frame, m_step);
    wxTimer limit;
    limit.Bind(wxEVT_TIMER, [&](wxTimerEvent &) { dialog.EndModal(wxID_ABORT); });
    limit.StartOnce(30000);
    EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL);
    limit.Stop();
    ASSERT_EQ(boxes.said().size(), 1u);
    EXPECT_NE(boxes.said()[0].find("resource layout file"), std::string::npos);
    EXPECT_EQ(value(m_table, "stepWriteNames"), "false");
}

TEST_F(ResourcesDialog, SavesAndLoadsWithoutAWindow)
{
    utString const file(folder().write("own.rsc", "stepWriteNames = false\n"));
    kitResources dialog(m_table, m_step);
    dialog.Load(file);
    EXPECT_EQ(value(dialog.working_table(), "stepWriteNames"), "false");
    dialog.working_table().add_resource("stepWriteColours", "false");
    utString const target(folder() / "target.rsc");
    dialog.Save(target);
    EXPECT_EQ(value_in(target, "stepWriteNames"), "false");
    EXPECT_EQ(value_in(target, "stepWriteColours"), "false");
}

TEST_F(ResourcesDialog, TellsWhenThereIsNoHelp)
{
    kitResources dialog(m_table, m_frame, m_step);
    show(dialog, [&] {
        kitHelpFolder const without_books(app(), folder());
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        press(dialog, "IDC_OPTIONS_HELP");
        EXPECT_EQ(boxes.said(),
                  std::vector<std::string>{"Couldn't find help files. Please check your installation"});
    });
}

TEST_F(ResourcesDialog, HasAFormForTheApplicationProgram)
{
    sglResourcesCom dialog(m_table, m_step, app().application_information(), m_frame);
    EXPECT_EQ(dialog.GetName(), "DLG_RESOURCESCOM");
    EXPECT_EQ(show_modal(dialog, [&] { press(dialog, "IDC_OPTIONS_OK"); }), wxID_OK);
}
