#include "screens/screens.h"
#include "sglReportDialog.h"

#include <atomic>
#include <filesystem>

TEST_F(Screens, ProgressWhileReading)
{
    kitRequest request;
    fill(request, 0, folder().write("gearbox housing.step", "x"), folder() / "gearbox housing.igs");
    kitDialog dialog(info(), frame(), nullptr);
    std::atomic<bool> seen = false;
    request.at_work = [&](s2sThreadComm & channel, int) {
        channel.currentFile(utString(folder() / "gearbox housing.step"), s2sReadWriteReading);
        channel.set_progress(40);
        say(dialog, "IDC_PROGRESS_OUTPUT", "Length unit of the file is mm\n");
        while (!seen)
            std::this_thread::yield();
    };
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run(request, dialog, [&] {
        run_until([&] { return find<wxGauge>(dialog, "IDC_PROGRESS_PROGRESS")->GetValue() == 40; });
        picture(dialog, "progress-reading");
        dialog.hide_details();
        picture(dialog, "progress-without-details");
        dialog.show_details();
        seen = true;
        wait_for_end(dialog);
        press(dialog, "IDC_PROGRESS_OK");
    });
}

TEST_F(Screens, ProgressAtTheEndOfARealTranslation)
{
    sglTranslation request;
    fill(request, 0, sample("linkrods.step", "linkrods.step"), folder() / "linkrods.igs");
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] { picture(dialog, "progress-end"); });
}

TEST_F(Screens, ProgressAfterAFailure)
{
    sglTranslation request;
    fill(request, 0, folder().write("cut off.step", "ISO-10303-21;\nHEADER;\n"), folder() / "cut off.igs");
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] { picture(dialog, "progress-failure"); });

    sglReportDialog report(frame());
    show_modal(report, [&] {
        picture(report, "report");
        press(report, "IDC_REPORT_OK");
    });
}

TEST_F(Screens, ReportOfFindings)
{
    auto const translate = [&](std::string const & name, std::string const & output) {
        sglTranslation request;
        auto const file = folder() / name;
        std::filesystem::copy_file(std::filesystem::path(FAULTS) / name, file);
        fill(request, 0, file, folder() / output);
        kitDialog dialog(info(), frame(), nullptr);
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        run_to_end(request, dialog, [] {});
    };
    translate("attr.step", "fixture.igs");
    translate("halfspace.step", "base plate.igs");
    sglReportDialog report(frame());
    show_modal(report, [&] {
        picture(report, "report-findings");
        auto * const text = find<sglEdit>(report, "IDC_REPORT_EDIT");
        text->ShowPosition(text->GetLastPosition());
        picture(report, "report-verdict");
        press(report, "IDC_REPORT_OK");
    });
}
