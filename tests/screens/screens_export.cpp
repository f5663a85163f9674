#include "screens/screens.h"
#include "sglDialogMenu.h"
#include "sglExportToDialog.h"
#include "sglResources.h"

TEST_F(Screens, OfTheExportSystems)
{
    auto const * const step = app().output_dlls().translator_for_format("STEP");
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    step->load(status);
    sglExportToDialog dialog(frame());
    ASSERT_TRUE(dialog.initialise(utString::make_invalid()));
    show_modal(dialog, [&] {
        picture(dialog, "export-to");
        press(dialog, "IDC_EXPORTTO_CANCEL");
    });
}

TEST_F(Screens, OfTheMenuOfTheOptions)
{
    auto const * const step = app().output_dlls().translator_for_format("STEP");
    utString const file = app().installation_resource_file(*step);
    vmrTableInstance table(file.c_str());
    sglResources dialog(table, frame(), step, info(), "DLG_RESOURCES");
    dialog.dialog_type(sglResourceDialogBuilder::output);
    show_modal(dialog, [&] {
        dialog.Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent &) {
            dialog.CallAfter([&] {
                picture(dialog, "options-menu");
                wxUIActionSimulator().Char(WXK_ESCAPE);
            });
        });
        click(*find<sglDialogMenu>(dialog, "IDC_RESOURCES_FILE_MENU"));
        press(dialog, "IDC_OPTIONS_CANCEL");
    });
}
