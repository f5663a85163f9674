#include "windows/translation/kitProgress.h"

#include "sglTDOstreamDisplayer.h"

#include <gmock/gmock.h>

namespace {

/// Translations by the engine, the host and the format modules of this build.
class RealTranslation : public kitProgressTest {
protected:
    void SetUp() override
    {
        kitProgressTest::SetUp();
        if (!std::filesystem::exists(samples))
            GTEST_SKIP() << "no sample files are installed";
    }
    /// The sample under a folder of the test's own, and an output beside it.
    void fill_sample(sglTranslation & request, std::string const & name)
    {
        std::filesystem::copy_file(samples / (name + ".step"), folder() / (name + ".step"));
        fill(request, 0, folder() / (name + ".step"), folder() / (name + ".igs"));
    }
    /// Without what differs from machine to machine.
    std::string normalised(std::string text) const
    {
        for (auto const & [path, name] : {std::pair{folder().path().string(), "FOLDER"},
                                          std::pair{std::string(VMR_BUILD_TREE), "INSTALLATION"}})
            for (auto at = text.find(path); at != std::string::npos; at = text.find(path))
                text.replace(at, path.size(), name);
        return text;
    }
    static std::string approved(std::string const & name) { return kit_read_file(APPROVED_TEXTS "/" + name); }

    std::filesystem::path const samples = "/usr/share/opencascade/data/step";
};

} // namespace

TEST_F(RealTranslation, EndsWellAndItsDetailsAreSavedAsTheApprovedLog)
{
    sglTranslation request;
    fill_sample(request, "screw");
    kitDialog dialog(info(), frame(), nullptr);
    std::string const log = folder() / "details.hrklog";
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect_file(log);
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog,
               [&] { choose_menu(control(dialog, "IDC_PROGRESS_OUTPUT"), "IDM_SAVE_DETAILS"); });
    EXPECT_EQ(dialog.GetReturnCode(), static_cast<int>(wxID_OK));
    EXPECT_GT(std::filesystem::file_size(folder() / "screw.igs"), 10'000u);
    EXPECT_EQ(boxes.said().back(), "Details successfully saved to " + log + ".");
    EXPECT_EQ(normalised(kit_read_file(log)), approved("screw.hrklog"));
}

TEST_F(RealTranslation, IsCancelledAndLeavesNoOutput)
{
    sglTranslation request;
    fill_sample(request, "linkrods");
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    wxStopWatch watch;
    long milliseconds = 0;
    boxes.expect([&](wxDialog *) {
        milliseconds = watch.Time();
        return static_cast<int>(wxID_OK);
    });
    run(request, dialog, [&] {
        run_until([&] { return request.communicator().progress() > 0; }, 60, "the first progress");
        watch.Start();
        press(dialog, "IDC_PROGRESS_CANCEL");
    });
    RecordProperty("milliseconds_to_stop", static_cast<int>(milliseconds));
    EXPECT_LT(milliseconds, 2000) << "half a second, and a machine with other work to do";
    EXPECT_EQ(dialog.GetReturnCode(), static_cast<int>(wxID_CANCEL));
    EXPECT_EQ(last_record().status(0), sdbProgressCancelled);
    std::vector<std::string> left;
    for (auto const & entry : std::filesystem::directory_iterator(folder().path()))
        left.push_back(entry.path().filename().string());
    EXPECT_THAT(left, testing::ElementsAre("linkrods.step"));
}

TEST_F(RealTranslation, FailsOnADamagedFileAndSaysWhichOne)
{
    sglTranslation request;
    std::string const input = folder().write("bad.step", "ISO-10303-21;\nHEADER;\n");
    fill(request, 0, input, folder() / "bad.igs");
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog);
    EXPECT_EQ(boxes.said()[0], "Unable to read input file " + input);
    EXPECT_EQ(dialog.GetReturnCode(), 9);
    EXPECT_FALSE(last_record().error_messages(0).empty());
    EXPECT_FALSE(std::filesystem::exists(folder() / "bad.igs"));
    EXPECT_EQ(last_record().verdict(0), sdbVerdictNotVerified);
    std::ostringstream report;
    sglTDOstreamDisplayer(&last_record(), info(), &report).display();
    EXPECT_THAT(report.str(),
                testing::EndsWith("\n  Verification : Not Verified\n    Note : bad.igs was not written\n"));
}

TEST_F(RealTranslation, SavesNoDetailsWhenNoFileIsChosen)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    boxes.expect_file_cancelled();
    run_to_end(request, dialog, [&] { dialog.save_details(); });
    EXPECT_EQ(boxes.said().size(), 1u);
}

TEST_F(RealTranslation, TellsOfSavedDetailsEvenWhereTheFolderIsGone)
{
    kitRequest request;
    fill(request);
    kitDialog dialog(info(), frame(), nullptr);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    std::string const log = folder() / "gone/details.hrklog";
    boxes.expect([&](wxDialog * box) {
        dynamic_cast<wxFileDialog &>(*box).SetPath(wxString::FromUTF8(log));
        return static_cast<int>(wxID_OK);
    });
    boxes.expect_message(wxID_OK);
    run_to_end(request, dialog, [&] { dialog.save_details(); });
    EXPECT_FALSE(std::filesystem::exists(log));
    EXPECT_THAT(boxes.said().back(), testing::StartsWith("Details successfully saved to "));
}
