#include "sglReportDialog.h"

#include "controls/sglShownText.h"
#include "kit/kitRecord.h"
#include "sglEdit.h"
#include "sglMenu.h"
#include "sglTDOstreamDisplayer.h"
#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <gmock/gmock.h>
#include <sstream>
#include <wx/clipbrd.h>
#include <wx/menu.h>
#include <wx/stopwatch.h>
#include <wx/treectrl.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

char const * const none = "No translations have been completed yet.";

class OpenReportDialog : public sglReportDialog {
public:
    using sglReportDialog::get_selected_data;
    using sglReportDialog::sglReportDialog;
};

class ReportDialog : public kitWindowTest {
protected:
    /// Two more records, "first" and "second"; the application keeps them to its end.
    void make_records()
    {
        register_record("first");
        register_record("second");
    }
    void register_record(std::string const & name)
    {
        kitRecord record;
        record.input(utString(folder() / (name + ".step")), "STEP")
            .output(utString(folder() / (name + ".igs")), "IGES")
            .ended(sdbProgressCompleted, "one\r\ntwo\r\n");
        app().register_translation(utPtrClaim, new sdbTranslationData(record.data));
    }
    static int count() { return app().num_translations(); }
    static std::string report(int index)
    {
        std::ostringstream stream;
        sglTDOstreamDisplayer(app().translation_details(index), app().application_information(), &stream)
            .display();
        return stream.str();
    }
    static std::string all_reports()
    {
        std::string text;
        for (int i = 0; i < count(); ++i)
            text += report(i) + "\n\n";
        return text;
    }
    static void command(wxWindow & dialog, char const * id)
    {
        choose_menu(*find<sglEdit>(dialog, "IDC_REPORT_EDIT"), id);
    }
    static wxTreeItemId item(wxTreeCtrl const & tree, int index)
    {
        wxTreeItemIdValue cookie;
        wxTreeItemId found = tree.GetFirstChild(tree.GetRootItem(), cookie);
        while (index-- > 0)
            found = tree.GetNextChild(tree.GetRootItem(), cookie);
        return found;
    }
    static std::string pane_text(wxWindow & dialog)
    {
        return find<sglEdit>(dialog, "IDC_REPORT_EDIT")->get_all_text().str();
    }
    static std::string clipboard_text()
    {
        wxTextDataObject data;
        EXPECT_TRUE(wxTheClipboard->Open());
        EXPECT_TRUE(wxTheClipboard->GetData(data));
        wxTheClipboard->Close();
        return data.GetText().utf8_string();
    }
};

/// As a window or the clipboard has the text.
std::string shown(std::string const & text)
{
    return sgl_shown_text(wxtStringConverter::to_wx(utString(text))).utf8_string();
}

/// As the pane has the text.
std::string with_line_ends(std::string const & log)
{
    std::string const text = shown(log);
    std::string result;
    for (char const character : text)
        result += character == '\n' ? "\r\n" : std::string(1, character);
    return result;
}

} // namespace

TEST_F(ReportDialog, AnswersEveryCommandWithAMessageWhileThereAreNoRecords)
{
    if (count() != 0)
        GTEST_SKIP() << "this application has records already; the test needs a process of its own";
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    for (int i = 0; i < 4; ++i)
        boxes.expect_message(wxID_OK);
    show_modal(dialog, [&] {
        auto const & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        EXPECT_EQ(tree.GetItemText(tree.GetRootItem()), "Root");
        EXPECT_EQ(tree.GetChildrenCount(tree.GetRootItem()), 0u);
        EXPECT_EQ(dialog.get_selected_data(), nullptr);
        EXPECT_EQ(pane_text(dialog), "");
        for (auto const * id :
             {"ID_REPORT_POPUP_SAVE", "ID_REPORT_POPUP_SAVE_ALL", "ID_REPORT_COPY", "ID_REPORT_COPY_ALL"})
            command(dialog, id);
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(boxes.said(), ElementsAre(none, none, none, none));
}

TEST_F(ReportDialog, HasTheMenuOfItsPaneInTheResources)
{
    std::unique_ptr<wxMenu> const menu(sglMenu("vmrgrlib").create_menu("MB_REPORT_POPUP"));
    ASSERT_TRUE(menu);
    for (auto const * id : {"ID_REPORT_POPUP_SAVE", "ID_REPORT_POPUP_SAVE_ALL", "ID_REPORT_COPY",
                            "ID_REPORT_COPY_ALL", "ID_REPORT_COPY_TEXT", "ID_REPORT_SELECT_ALL"})
        EXPECT_TRUE(menu->FindItem(XRCID(id))) << id;
}

TEST_F(ReportDialog, ListsAllRecordsAndShowsTheFirst)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    int const result = show_modal(dialog, [&] {
        auto const & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        EXPECT_EQ(static_cast<int>(tree.GetChildrenCount(tree.GetRootItem())), count());
        EXPECT_EQ(tree.GetItemText(item(tree, count() - 1)), "Translation of second.step to second.igs");
        EXPECT_EQ(dialog.get_selected_data(), app().translation_details(0));
        EXPECT_TRUE(pane_text(dialog) == with_line_ends(report(0)));
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_EQ(result, static_cast<int>(wxID_OK));
}

TEST_F(ReportDialog, ShowsTheReportThatIsSelectedFromItsTop)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    show_modal(dialog, [&] {
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        auto const & pane = *find<sglEdit>(dialog, "IDC_REPORT_EDIT");
        tree.SelectItem(item(tree, count() - 1));
        settle();
        EXPECT_TRUE(pane_text(dialog) == with_line_ends(report(count() - 1)));
        EXPECT_EQ(pane.GetInsertionPoint(), 0);
        wxTreeItemId const below = tree.AppendItem(item(tree, count() - 2), "below");
        wxTreeItemId const further_below = tree.AppendItem(below, "further below");
        tree.SelectItem(further_below);
        settle();
        EXPECT_EQ(dialog.get_selected_data(), app().translation_details(count() - 2));
        press(dialog, "IDC_REPORT_OK");
    });
}

TEST_F(ReportDialog, HasNoRecordWhileTheRootIsSelectedAndLeavesThePaneAsItStands)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect_message(wxID_OK);
    show_modal(dialog, [&] {
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        tree.SelectItem(tree.GetRootItem());
        settle();
        EXPECT_EQ(dialog.get_selected_data(), nullptr);
        EXPECT_TRUE(pane_text(dialog) == with_line_ends(report(0)));
        command(dialog, "ID_REPORT_POPUP_SAVE");
        command(dialog, "ID_REPORT_COPY");
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(boxes.said(), ElementsAre(none, none));
}

TEST_F(ReportDialog, SavesTheReportThatIsSelected)
{
    std::string const file = folder() / "one.hrklog";
    make_records();
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    boxes.expect_file(file);
    boxes.expect_message(wxID_OK);
    boxes.expect_file_cancelled();
    show_modal(dialog, [&] {
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        tree.SelectItem(item(tree, count() - 1));
        command(dialog, "ID_REPORT_POPUP_SAVE");
        command(dialog, "ID_REPORT_POPUP_SAVE");
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(boxes.said(), ElementsAre("Details successfully saved to " + file + "."));
    EXPECT_TRUE(kit_read_file(file) == report(count() - 1));
}

TEST_F(ReportDialog, OffersTheInputPathWithTheExtensionOfLogsAndAsksBeforeOverwriting)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    std::vector<std::string> offered;
    std::string const first_input = app().translation_details(0)->input_file(0).str();
    std::string const first_folder = first_input.substr(0, first_input.rfind('/') + 1);
    for (int i = 0; i < 2; ++i)
        boxes.expect([&](wxDialog * box) {
            auto * const files = dynamic_cast<wxFileDialog *>(box);
            EXPECT_EQ(files->GetWindowStyle() & (wxFD_SAVE | wxFD_OVERWRITE_PROMPT),
                      wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
            offered.push_back(files->GetFilename().utf8_string());
            return static_cast<int>(wxID_CANCEL);
        });
    show_modal(dialog, [&] {
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        tree.SelectItem(item(tree, count() - 1));
        command(dialog, "ID_REPORT_POPUP_SAVE");
        command(dialog, "ID_REPORT_POPUP_SAVE_ALL");
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(offered,
                ElementsAre(folder() / "second.step.hrklog", first_folder + "translation_details.hrklog"));
}

TEST_F(ReportDialog, SavesAllReportsInOneFile)
{
    std::string const file = folder() / "all.hrklog";
    make_records();
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    boxes.expect_file(file);
    boxes.expect_message(wxID_OK);
    show_modal(dialog, [&] {
        command(dialog, "ID_REPORT_POPUP_SAVE_ALL");
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_TRUE(kit_read_file(file) == all_reports());
}

TEST_F(ReportDialog, TellsOfSavedDetailsEvenWhereTheFileCannotBeOpened)
{
    std::string const file = folder() / "nowhere.hrklog";
    std::filesystem::create_symlink("gone/nowhere", file);
    make_records();
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    boxes.expect_file(file);
    boxes.expect_message(wxID_OK);
    show_modal(dialog, [&] {
        command(dialog, "ID_REPORT_POPUP_SAVE");
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(boxes.said(), ElementsAre("Details successfully saved to " + file + "."));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ReportDialog, CopiesOneReportOrAllOfThem)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    show_modal(dialog, [&] {
        command(dialog, "ID_REPORT_COPY");
        EXPECT_TRUE(clipboard_text() == shown(report(0)));
        command(dialog, "ID_REPORT_COPY_ALL");
        EXPECT_TRUE(clipboard_text() == shown(all_reports()));
        press(dialog, "IDC_REPORT_OK");
    });
}

TEST_F(ReportDialog, SaysSoWhenTheClipboardCannotBeHad)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    show_modal(dialog, [&] {
        ASSERT_TRUE(wxTheClipboard->Open());
        command(dialog, "ID_REPORT_COPY");
        wxTheClipboard->Close();
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(boxes.said(), ElementsAre("Copy to clipboard failed."));
    EXPECT_EQ(boxes.styles()[0] & (wxOK | wxICON_EXCLAMATION), wxOK | wxICON_EXCLAMATION);
}

TEST_F(ReportDialog, SelectsAndCopiesTheTextOfItsPane)
{
    make_records();
    OpenReportDialog dialog(show_frame());
    show_modal(dialog, [&] {
        auto & pane = *find<sglEdit>(dialog, "IDC_REPORT_EDIT");
        command(dialog, "ID_REPORT_SELECT_ALL");
        EXPECT_TRUE(pane.HasFocus());
        EXPECT_THAT(pane.GetStringSelection().utf8_string(),
                    StartsWith(shown(report(0).substr(0, report(0).find('\n')))));
        pane.SetSelection(0, 5);
        command(dialog, "ID_REPORT_COPY_TEXT");
        EXPECT_EQ(clipboard_text(), shown(report(0)).substr(0, 5));
        press(dialog, "IDC_REPORT_OK");
    });
}

TEST_F(ReportDialog, ShowsAndSavesAReportOfAHundredThousandLines)
{
    std::string messages;
    for (int i = 0; i < 100'000; ++i)
        messages += "message " + std::to_string(i) + " of the translator\r\n";
    kitRecord record;
    record.input("a.step", "STEP").output("a.igs", "IGES").ended(sdbProgressCompleted, messages);
    app().register_translation(utPtrClaim, new sdbTranslationData(record.data));
    OpenReportDialog dialog(show_frame());
    show_modal(dialog, [&] {
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        wxStopWatch watch;
        tree.SelectItem(item(tree, count() - 1));
        RecordProperty("show_in_milliseconds", static_cast<int>(watch.Time()));
        watch.Start();
        EXPECT_TRUE(pane_text(dialog) == with_line_ends(report(count() - 1)));
        RecordProperty("report_in_milliseconds", static_cast<int>(watch.Time()));
        press(dialog, "IDC_REPORT_OK");
    });
}

TEST_F(ReportDialog, ShowsFileNamesThatAreNotUtf8AndSavesThemAsTheyAre)
{
    register_record("part \xff");
    std::string const file = folder() / "odd.hrklog";
    OpenReportDialog dialog(show_frame());
    kitModal boxes;
    boxes.expect_file(file);
    boxes.expect_message(wxID_OK);
    show_modal(dialog, [&] {
        auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
        tree.SelectItem(item(tree, count() - 1));
        settle();
        std::string const title = "Translation of part \xEF\xBF\xBD.step to part \xEF\xBF\xBD.igs";
        EXPECT_EQ(tree.GetItemText(item(tree, count() - 1)).utf8_string(), title);
        EXPECT_THAT(pane_text(dialog), StartsWith(title + "\r\n"));
        command(dialog, "ID_REPORT_POPUP_SAVE");
        press(dialog, "IDC_REPORT_OK");
    });
    EXPECT_THAT(kit_read_file(file), HasSubstr("/part \xff.step\n"));
}
