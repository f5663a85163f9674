#include "sglExportToDialog.h"

#include "windows/kit/kitWindowTest.h"

namespace {

class ExportTo : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
    }

    utString file(std::string const & text) const { return utString(folder().write("systems.txt", text)); }

    /// Runs the dialog over a file and gives what was chosen, or what ended it.
    std::string choose(utString const & path,
                       std::function<void(sglExportToDialog &, wxListBox &)> const & script)
    {
        sglExportToDialog dialog(m_frame);
        EXPECT_TRUE(dialog.initialise(path));
        int const result =
            show_modal(dialog, [&] { script(dialog, *find<wxListBox>(dialog, "IDC_EXPORTTO_LIST")); });
        if (result != wxID_OK)
            return "ended with " + std::to_string(result);
        auto const * const system = dialog.selected_system();
        if (!system)
            return "nothing";
        std::string chosen = system->get_system_name().str();
        for (sglExportSystemIT walk(*system); ++walk;)
            chosen += " " + walk.resource().str() + "=" + walk.value().str();
        return chosen;
    }

    wxFrame * m_frame = nullptr;
};

char const two[] = "Milling\nvmrOptOutputUnits in\n#\nCasting\nvmrOptOutputUnits cm\n#\n";

} // namespace

TEST_F(ExportTo, ListsTheSystemsOfTheFileWithTheFirstSelected)
{
    auto const chosen = choose(file(two), [](sglExportToDialog & dialog, wxListBox & list) {
        ASSERT_EQ(list.GetCount(), 2u);
        EXPECT_EQ(list.GetString(0), "Milling");
        EXPECT_EQ(list.GetString(1), "Casting");
        EXPECT_EQ(list.GetSelection(), 0);
        press(dialog, "IDC_EXPORTTO_OK");
    });
    EXPECT_EQ(chosen, "Milling vmrOptOutputUnits=in");
}

TEST_F(ExportTo, GivesTheSystemThatIsSelectedWithTheKeyboard)
{
    auto const chosen = choose(file(two), [](sglExportToDialog &, wxListBox & list) {
        list.SetFocus();
        run_until([&] { return list.HasFocus(); }, 20, "the focus");
        key(WXK_DOWN);
        run_until([&] { return list.GetSelection() == 1; }, 20, "the second row");
        key(WXK_RETURN);
    });
    EXPECT_EQ(chosen, "Casting vmrOptOutputUnits=cm");
}

TEST_F(ExportTo, IsCancelledByItsButtonAndByEscape)
{
    EXPECT_EQ(choose(file(two),
                     [](sglExportToDialog & dialog, wxListBox &) { press(dialog, "IDC_EXPORTTO_CANCEL"); }),
              "ended with 5101");
    EXPECT_EQ(choose(file(two), [](sglExportToDialog &, wxListBox &) { key(WXK_ESCAPE); }),
              "ended with 5101");
}

TEST_F(ExportTo, ShowsBothSystemsOfOneNameAndTakesTheFirst)
{
    auto const chosen = choose(file("Same\nvmrOptOutputUnits in\n#\nSame\nvmrOptOutputUnits cm\n#\n"),
                               [](sglExportToDialog & dialog, wxListBox & list) {
                                   EXPECT_EQ(list.GetCount(), 2u);
                                   list.SetSelection(1);
                                   press(dialog, "IDC_EXPORTTO_OK");
                               });
    EXPECT_EQ(chosen, "Same vmrOptOutputUnits=in");
}

TEST_F(ExportTo, KeepsTheBlanksBehindANameAndBytesThatAreNoText)
{
    auto const chosen =
        choose(file("Milling  \n#\nM\xFChle\n#\n"), [](sglExportToDialog & dialog, wxListBox & list) {
            EXPECT_EQ(list.GetString(0), "Milling  ");
            EXPECT_EQ(list.GetString(1), wxString(L"M\xFFFDhle"));
            list.SetSelection(1);
            press(dialog, "IDC_EXPORTTO_OK");
        });
    EXPECT_EQ(chosen, "M\xFChle");
}

TEST_F(ExportTo, HasNothingToChooseFromInAFileThatCannotBeUsed)
{
    sglExportToDialog dialog(m_frame);
    EXPECT_FALSE(dialog.initialise(file("# no name\n")));
    EXPECT_EQ(dialog.selected_system(), nullptr);
}

TEST_F(ExportTo, ReadsTheInstalledFileByDefault)
{
    auto const chosen = choose(utString::make_invalid(), [](sglExportToDialog & dialog, wxListBox & list) {
        EXPECT_GE(list.GetCount(), 5u);
        press(dialog, "IDC_EXPORTTO_OK");
    });
    EXPECT_NE(chosen, "nothing");
}

TEST_F(ExportTo, ShowsAllItsTextsInTheUsersLanguage)
{
    sglExportToDialog dialog(m_frame);
    EXPECT_EQ(dialog.GetTitle(), "Export To");
    EXPECT_EQ(find<wxButton>(dialog, "IDC_EXPORTTO_OK")->GetLabel(), "&OK");
    EXPECT_EQ(find<wxButton>(dialog, "IDC_EXPORTTO_CANCEL")->GetLabel(), "&Cancel");
}
