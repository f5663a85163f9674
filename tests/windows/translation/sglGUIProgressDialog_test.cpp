#include "windows/kit/kitHelpWindow.h"
#include "windows/translation/kitProgress.h"

#include "sglMenu.h"
#include "sglNlsHelp.h"

#include "windows/kit/kitFileChooser.h"

#include <gmock/gmock.h>
#include <wx/filedlg.h>
#include <wx/gauge.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/statline.h>
#include <wx/stopwatch.h>

namespace {

using ProgressDialog = kitHelpOverDialog<kitProgressTest>;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

char const * const success = "The translation has completed successfully";
char const * const some_errors = "The translation has completed but there were some errors";
char const * const cancelled = "The translation has been cancelled";

} // namespace

TEST_F(ProgressDialog, HasItsControlsAndAMinimiseBox)
{
    kitDialog dialog(info(), frame(), nullptr);
    EXPECT_TRUE(dialog.GetWindowStyleFlag() & wxMINIMIZE_BOX);
    EXPECT_EQ(find<wxStaticText>(dialog, "IDC_PROGRESS_READ_WRITE")->GetLabel(), "Reading :");
    EXPECT_TRUE(find<wxGauge>(dialog, "IDC_PROGRESS_PROGRESS"));
    EXPECT_TRUE(find<wxStaticLine>(dialog, "IDC_PROGRESS_HR"));
    EXPECT_TRUE(find<wxButton>(dialog, "IDC_PROGRESS_DETAILS"));
    auto * const tabs = find<wxNotebook>(dialog, "IDC_PROGRESS_TAB");
    EXPECT_EQ(tabs->GetPage(0), find<sglEdit>(dialog, "IDC_PROGRESS_OUTPUT"));
    EXPECT_EQ(tabs->GetPage(1), find<sglEdit>(dialog, "IDC_PROGRESS_ERROR"));
    EXPECT_EQ(dialog.cancelled(), 0);
}

TEST_F(ProgressDialog, TellsOfACleanEndAndWaitsForOk)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    request.at_work = [&](s2sThreadComm &, int) { say(dialog, "IDC_PROGRESS_OUTPUT", "all is well\n"); };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] {
        EXPECT_FALSE(enabled(dialog, "IDC_PROGRESS_CANCEL"));
        EXPECT_TRUE(control(dialog, "IDC_PROGRESS_OK").HasFocus());
        EXPECT_EQ(find<wxNotebook>(dialog, "IDC_PROGRESS_TAB")->GetSelection(), 0);
        EXPECT_EQ(find<wxGauge>(dialog, "IDC_PROGRESS_PROGRESS")->GetValue(), 100);
    });
    EXPECT_THAT(boxes.said(), ElementsAre(success));
    EXPECT_TRUE(boxes.styles()[0] & wxICON_INFORMATION);
    EXPECT_EQ(dialog.GetReturnCode(), static_cast<int>(wxID_OK));
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    EXPECT_EQ(last_record().output_messages(0), utString("all is well\r\n"));
    EXPECT_EQ(last_record().error_messages(0), utString(""));
    EXPECT_EQ(getNlsHelp()->translating(), 0);
}

TEST_F(ProgressDialog, RecordsTheVerdictAndTheFindings)
{
    kitRequest request;
    fill(request);
    request.outcomes[0].verification.verdict = sdbVerdictDiffers;
    request.outcomes[0].verification.findings.add(
        {sdbWeightDifference, "volume", "Bolt", "", 3, 2, "Bolt: 2 mm3 instead of 3 mm3"});
    kitDialog dialog(info(), frame(), nullptr);
    std::string const log = folder() / "details.hrklog";
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect_file(log);
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] { dialog.save_details(); });
    EXPECT_EQ(last_record().verdict(0), sdbVerdictDiffers);
    EXPECT_EQ(last_record().findings(0).kept().size(), 1u);
    EXPECT_THAT(kit_read_file(log), testing::EndsWith("\n  Verification : Differences\n"
                                                      "    Difference : Bolt: 2 mm3 instead of 3 mm3\n"));
}

TEST_F(ProgressDialog, ShowsTheStateOfARun)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> seen = false;
    request.at_work = [&](s2sThreadComm & channel, int) {
        channel.currentFile("/parts/bolts & nuts.igs", s2sReadWriteWriting);
        channel.set_progress(40);
        while (!seen)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        auto * const tabs = find<wxNotebook>(dialog, "IDC_PROGRESS_TAB");
        auto * const gauge = find<wxGauge>(dialog, "IDC_PROGRESS_PROGRESS");
        auto * const file = find<wxStaticText>(dialog, "IDC_PROGRESS_FILE_NAME");
        run_until([&] { return gauge->GetValue() == 40; }, 20, "the progress");
        EXPECT_EQ(tabs->GetPageText(0), "Output");
        EXPECT_EQ(tabs->GetPageText(1), "Errors");
        EXPECT_EQ(gauge->GetRange(), 100);
        EXPECT_EQ(file->GetLabelText(), "/parts/bolts & nuts.igs");
        EXPECT_EQ(file->GetToolTipText(), "/parts/bolts & nuts.igs");
        run_until(
            [&] { return find<wxStaticText>(dialog, "IDC_PROGRESS_READ_WRITE")->GetLabel() == "Writing :"; });
        EXPECT_FALSE(enabled(dialog, "IDC_PROGRESS_OK"));
        EXPECT_TRUE(enabled(dialog, "IDC_PROGRESS_CANCEL"));
        EXPECT_EQ(getNlsHelp()->translating(), 1);
        seen = true;
        wait_for_end(dialog);
        press(dialog, "IDC_PROGRESS_OK");
    });
}

TEST_F(ProgressDialog, OpensTheHelpWithF1OnceItHasEnded)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> pressed = false;
    request.at_work = [&](s2sThreadComm &, int) {
        while (!pressed)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        run_until([&] { return dialog.IsActive(); }, 20, "the dialog to be the active one");
        key(WXK_F1);
        EXPECT_FALSE(kit_help_window<wxHtmlHelpDialog>());
        pressed = true;
        wait_for_end(dialog);
        EXPECT_EQ(help_page_over_dialog([] { key(WXK_F1); }), "substituted/source/dialogs/progress.htm");
        press(dialog, "IDC_PROGRESS_OK");
    });
}

TEST_F(ProgressDialog, EndsByItselfWhenThereIsNothingToSayAtACleanEnd)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    dialog.set_translation_ended_ok_message("");
    kitModal const no_boxes;
    run(request, dialog);
    EXPECT_EQ(dialog.GetReturnCode(), static_cast<int>(wxID_OK));
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
}

TEST_F(ProgressDialog, WarnsWhenTextHasArrivedOnTheErrorPane)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    dialog.set_translation_ended_ok_message("");
    // The last words before the end count, too.
    request.at_work = [&](s2sThreadComm &, int) { say(dialog, "IDC_PROGRESS_ERROR", "a face was mended\n"); };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog,
               [&] { EXPECT_EQ(find<wxNotebook>(dialog, "IDC_PROGRESS_TAB")->GetSelection(), 1); });
    EXPECT_THAT(boxes.said(), ElementsAre(HasSubstr("has detected some non-fatal problems")));
    EXPECT_EQ(last_record().error_messages(0), utString("a face was mended\r\n"));
}

TEST_F(ProgressDialog, TellsOfEntitiesThatFailed)
{
    kitRequest request;
    fill(request);
    request.outcomes = {{s2sThreadCompleted, 5, 2}};
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog);
    EXPECT_THAT(boxes.said(), ElementsAre(some_errors));
    EXPECT_TRUE(boxes.styles()[0] & wxICON_EXCLAMATION);
    EXPECT_EQ(dialog.GetReturnCode(), static_cast<int>(wxID_OK));
}

TEST_F(ProgressDialog, ShowsTheMessageOfAFailureAndOpensTheDetailsOnTheErrors)
{
    kitRequest request;
    fill(request);
    request.outcomes = {{s2sThreadReadError, 0, 0}};
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> closed = false;
    request.at_work = [&](s2sThreadComm &, int) {
        say(dialog, "IDC_PROGRESS_ERROR", "line 3 makes no sense\n");
        while (!closed)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        int const full = dialog.GetSize().y;
        press(dialog, "IDC_PROGRESS_DETAILS");
        closed = true;
        wait_for_end(dialog);
        settle();
        EXPECT_EQ(dialog.GetSize().y, full);
        EXPECT_EQ(find<wxNotebook>(dialog, "IDC_PROGRESS_TAB")->GetSelection(), 1);
        press(dialog, "IDC_PROGRESS_OK");
    });
    EXPECT_THAT(boxes.said(), ElementsAre("Unable to read input file " + folder() / "0.step"));
    EXPECT_TRUE(boxes.styles()[0] & wxICON_HAND);
    EXPECT_EQ(dialog.GetReturnCode(), 9);
    EXPECT_EQ(last_record().status(0), sdbProgressFailed);
    EXPECT_EQ(last_record().error_messages(0), utString("line 3 makes no sense\r\n"));
}

TEST_F(ProgressDialog, ClosesByItselfAfterACancelAndKeepsNoText)
{
    kitRequest request;
    fill(request);
    request.outcomes = {{s2sThreadCancelled, 0, 0}};
    kitDialog dialog(info(), frame(), nullptr);
    request.at_work = [&](s2sThreadComm & channel, int) {
        say(dialog, "IDC_PROGRESS_OUTPUT", "begun\n");
        while (!channel.termination_requested())
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect([&](wxDialog *) {
        EXPECT_EQ(find<sglEdit>(dialog, "IDC_PROGRESS_OUTPUT")->GetValue(), "");
        return static_cast<int>(wxID_OK);
    });
    int const records = app().num_translations();
    run(request, dialog, [&] {
        press(dialog, "IDC_PROGRESS_CANCEL");
        EXPECT_EQ(dialog.cancelled(), 1);
        EXPECT_TRUE(dialog.IsShown());
    });
    EXPECT_THAT(boxes.said(), ElementsAre(cancelled));
    EXPECT_EQ(dialog.GetReturnCode(), static_cast<int>(wxID_CANCEL));
    EXPECT_EQ(app().num_translations(), records + 1);
    EXPECT_EQ(last_record().status(0), sdbProgressCancelled);
    EXPECT_EQ(last_record().output_messages(0), utString(""));
    EXPECT_TRUE(folder().exists("0.igs")) << "of an earlier run";
}

TEST_F(ProgressDialog, StaysOpenWhateverIsDoneToItsCloseBox)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> closed = false;
    request.at_work = [&](s2sThreadComm &, int) {
        while (!closed)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        EXPECT_FALSE(dialog.Close()) << "vetoed while the worker runs";
        EXPECT_TRUE(dialog.IsModal());
        EXPECT_EQ(dialog.cancelled(), 0);
        closed = true;
        wait_for_end(dialog);
        dialog.Close();
        settle();
        EXPECT_TRUE(dialog.IsModal()) << "ignored once OK can be pressed";
        EXPECT_TRUE(dialog.IsShown());
        press(dialog, "IDC_PROGRESS_OK");
    });
}

TEST_F(ProgressDialog, TakesTheEscapeKeyForCancelWhileTheWorkerRuns)
{
    kitRequest request;
    fill(request);
    request.outcomes = {{s2sThreadCancelled, 0, 0}};
    kitDialog dialog(info(), frame(), nullptr);
    request.at_work = [](s2sThreadComm & channel, int) {
        while (!channel.termination_requested())
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        settle();
        key(WXK_ESCAPE);
    });
    EXPECT_THAT(boxes.said(), ElementsAre(cancelled));
}

TEST_F(ProgressDialog, ClosesItsDetailsAtTheSeparatorAndOpensThemAgain)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] {
        settle();
        auto const full = dialog.GetSize();
        auto const place = dialog.GetPosition();
        auto const & separator = control(dialog, "IDC_PROGRESS_HR");
        auto const & details = control(dialog, "IDC_PROGRESS_DETAILS");
        int const line = separator.GetRect().y;
        EXPECT_EQ(details.GetLabel(), "<< Details");
        press(dialog, "IDC_PROGRESS_DETAILS");
        settle();
        EXPECT_EQ(details.GetLabel(), "Details >>");
        EXPECT_EQ(dialog.GetSize(), wxSize(full.x, line));
        EXPECT_EQ(dialog.GetPosition(), place);
        EXPECT_TRUE(control(dialog, "IDC_PROGRESS_TAB").IsShown());
        // All that belongs to the upper part can be seen, and nothing of the lower.
        EXPECT_LT(details.GetRect().GetBottom(), dialog.GetClientSize().y);
        EXPECT_GE(separator.GetRect().y, dialog.GetClientSize().y);
        press(dialog, "IDC_PROGRESS_DETAILS");
        settle();
        EXPECT_EQ(details.GetLabel(), "<< Details");
        EXPECT_EQ(dialog.GetSize(), full);
    });
}

TEST_F(ProgressDialog, GivesItsPanesTheMouseAndTheMenuOnlyAfterTheEnd)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> seen = false;
    request.at_work = [&](s2sThreadComm &, int) {
        say(dialog, "IDC_PROGRESS_OUTPUT", "some text\n");
        while (!seen)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    auto * const pane = find<sglEdit>(dialog, "IDC_PROGRESS_OUTPUT");
    int menus = 0;
    pane->Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent & event) {
        menus += event.GetMenu()->FindItem(XRCID("IDM_SAVE_DETAILS")) ? 1 : 0;
        wxUIActionSimulator().Char(WXK_ESCAPE);
    });
    auto const press_right = [pane] {
        wxMouseEvent event(wxEVT_RIGHT_DOWN);
        event.SetPosition(wxPoint(5, 5));
        pane->ProcessWindowEvent(event);
    };
    run(request, dialog, [&] {
        run_until([&] { return pane->GetValue() == "some text\n"; }, 20, "the text");
        press_right();
        EXPECT_EQ(menus, 0) << "while the worker runs";
        seen = true;
        wait_for_end(dialog);
        press_right();
        EXPECT_EQ(menus, 1);
        choose_menu(*pane, "ID_EDIT_SELECT_ALL");
        EXPECT_TRUE(pane->HasFocus());
        EXPECT_EQ(pane->GetStringSelection(), "some text\n");
        int copies = 0;
        pane->Bind(
            wxEVT_MENU, [&](wxCommandEvent &) { ++copies; }, wxID_COPY);
        choose_menu(*pane, "IDM_EDIT_COPY");
        EXPECT_EQ(copies, 1);
        control(dialog, "IDC_PROGRESS_OK").SetFocus();
        settle();
        choose_menu(*pane, "IDM_EDIT_COPY");
        EXPECT_EQ(copies, 1) << "the copy goes to the window with the focus";
        press(dialog, "IDC_PROGRESS_OK");
    });
}

TEST_F(ProgressDialog, ResetsForAnotherRun)
{
    kitDialog dialog(info(), frame(), nullptr);
    find<sglEdit>(dialog, "IDC_PROGRESS_OUTPUT")->AppendText("old");
    find<sglEdit>(dialog, "IDC_PROGRESS_ERROR")->AppendText("old");
    static_cast<sglProgressDialogBase &>(dialog).OnCancel();
    dialog.operationLabel("Writing :");
    dialog.activateOKbutton();
    dialog.reset();
    EXPECT_EQ(dialog.cancelled(), 0);
    EXPECT_EQ(find<wxStaticText>(dialog, "IDC_PROGRESS_READ_WRITE")->GetLabel(), "Reading :");
    EXPECT_FALSE(enabled(dialog, "IDC_PROGRESS_OK"));
    EXPECT_TRUE(enabled(dialog, "IDC_PROGRESS_CANCEL"));
    EXPECT_EQ(find<sglEdit>(dialog, "IDC_PROGRESS_OUTPUT")->GetValue(), "");
    EXPECT_EQ(find<sglEdit>(dialog, "IDC_PROGRESS_ERROR")->GetValue(), "old");
}

TEST_F(ProgressDialog, SaysWhetherProgressHasGrown)
{
    kitDialog dialog(info(), frame(), nullptr);
    EXPECT_TRUE(dialog.progress(10));
    EXPECT_FALSE(dialog.progress(10));
    EXPECT_FALSE(dialog.progress(5));
    EXPECT_TRUE(dialog.progress(6));
}

TEST_F(ProgressDialog, RecordsAllInputsAndTheFirstOutputOfAMerge)
{
    kitRequest request;
    fill(request, 0);
    fill(request, 1);
    kitDialog dialog(info(), frame(), nullptr);
    dialog.start_translation_data(&request);
    auto const & record = dialog.record();
    EXPECT_EQ(record.type(), sdbTranslationMerge);
    ASSERT_EQ(record.num_input_files(), 2);
    EXPECT_EQ(record.input_file(1), utString(folder() / "1.step"));
    EXPECT_EQ(record.input_format(1), utString("STEP"));
    ASSERT_EQ(record.num_output_files(), 1);
    EXPECT_EQ(record.output_file(0), utString(folder() / "0.igs"));
    EXPECT_EQ(record.output_resource_table(0).resource_file(),
              request.output_resource_table(0).resource_file());
}

TEST_F(ProgressDialog, ShowsTheParentAgainWhenTheTranslationHasEnded)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    dialog.set_translation_ended_ok_message("");
    frame()->Hide();
    run(request, dialog);
    EXPECT_TRUE(frame()->IsShown());
}

TEST_F(ProgressDialog, HasTheMenuOfItsPanesInTheResources)
{
    std::unique_ptr<wxMenu> const menu(sglMenu("vmrgrlib").create_menu("MB_PROGRESS_POPUP"));
    ASSERT_TRUE(menu);
    for (auto const * id : {"IDM_EDIT_COPY", "ID_EDIT_SELECT_ALL", "IDM_SAVE_DETAILS"})
        EXPECT_TRUE(menu->FindItem(XRCID(id))) << id;
}

TEST_F(ProgressDialog, StaysAliveWhileAHundredThousandMessagesArrive)
{
    constexpr int messages = 100'000;
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    request.at_work = [&](s2sThreadComm &, int) {
        std::unique_ptr<vmrnlsDisplayer> const stream(dialog.output_display());
        for (int i = 0; i < messages; ++i)
            stream->display(("message " + std::to_string(i) + " of the translator\n").c_str());
    };
    wxTimer ticks;
    wxStopWatch since_tick;
    long longest = 0;
    ticks.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
        longest = std::max(longest, since_tick.Time());
        since_tick.Start();
    });
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    since_tick.Start();
    ticks.Start(10);
    run_to_end(request, dialog);
    longest = std::max(longest, since_tick.Time());
    RecordProperty("longest_wait_in_milliseconds", static_cast<int>(longest));
    EXPECT_LT(longest, 2000)
        << "a user waits at most a fifth of a second on a machine with nothing else to do";
    auto const text = last_record().output_messages(0).str();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), messages);
    EXPECT_TRUE(text.ends_with("message 99999 of the translator\r\n"));
}

TEST_F(ProgressDialog, ShowsFileNamesThatAreNotUtf8)
{
    kitRequest request;
    std::string const input = folder().write("part \xff.step", "input");
    fill(request, 0, input, folder() / "part.igs");
    request.outcomes = {{s2sThreadReadError, 0, 0}};
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] {
        auto const shown = find<wxStaticText>(dialog, "IDC_PROGRESS_FILE_NAME")->GetLabelText();
        EXPECT_TRUE(shown.EndsWith(L"part \xFFFD.step")) << shown;
    });
    EXPECT_THAT(boxes.said()[0], testing::EndsWith("part \xEF\xBF\xBD.step"));
    EXPECT_EQ(last_record().input_file(0), utString(input));
}

TEST_F(ProgressDialog, AsksForALogWithoutANameAndWithoutAskingBeforeOverwriting)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect([&](wxDialog * box) {
        auto & files = dynamic_cast<wxFileDialog &>(*box);
        EXPECT_EQ(files.GetParent(), &dialog);
        EXPECT_EQ(files.GetWindowStyle() &
                      (wxFD_OPEN | wxFD_SAVE | wxFD_FILE_MUST_EXIST | wxFD_OVERWRITE_PROMPT | wxFD_MULTIPLE),
                  wxFD_SAVE);
        EXPECT_EQ(files.GetFilename(), "");
        auto const name = app().application_name_no_version().str();
        EXPECT_THAT(kitFileChooser(files).labels(),
                    ElementsAre(name + " Log Files (*.hrklog)", "All files (*.*)"));
        return static_cast<int>(wxID_CANCEL);
    });
    run_to_end(request, dialog, [&] { dialog.save_details(); });
}

TEST_F(ProgressDialog, SavesItsLogUnderANameWithTheExtensionOfLogs)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect_file(folder() / "typed");
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] { dialog.save_details(); });
    EXPECT_EQ(boxes.said().back(), "Details successfully saved to " + folder() / "typed.hrklog" + ".");
    EXPECT_THAT(kit_read_file(folder() / "typed.hrklog"), HasSubstr("Translation Status : Completed"));
}

TEST_F(ProgressDialog, CanBeMinimisedAndComesBack)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> seen = false;
    request.at_work = [&](s2sThreadComm &, int) {
        while (!seen)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        dialog.Iconize();
        run_until([&] { return dialog.IsIconized(); }, 20, "the dialog to be minimised");
        dialog.Iconize(false);
        run_until([&] { return !dialog.IsIconized(); }, 20, "the dialog to come back");
        seen = true;
        wait_for_end(dialog);
        press(dialog, "IDC_PROGRESS_OK");
    });
}
