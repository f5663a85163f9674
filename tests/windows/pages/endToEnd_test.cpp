// Whole runs of the three pages, each with files that are dropped and with files that are browsed for.

#include "kit/kitAsOrdinaryUser.h"
#include "sglEdit.h"
#include "sglMergeFiles.h"
#include "sglReportDialog.h"
#include "sglSingleFile.h"
#include "translators/kit/kitAssembly.h"
#include "windows/pages/kitBatchPage.h"
#include "windows/pages/kitChosenFiles.h"

#include <gmock/gmock.h>
#include <wx/treectrl.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class EndToEnd : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        if (!have_samples())
            GTEST_SKIP() << "no sample files are installed";
    }
    void expect_completed_iges(std::string const & name)
    {
        EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
        EXPECT_EQ(folder().read(name).substr(72, 1), "S") << "no start section";
        EXPECT_GT(std::filesystem::file_size(folder() / name), 10'000u);
    }
    /// A part of each of three formats, in a folder of their own.
    std::vector<std::string> three_parts() const
    {
        std::filesystem::create_directory(folder() / "parts");
        return {sample("iges/hammer.iges", "parts/hammer.iges"),
                sample("occ/mal_ecrou.brep", "parts/nut.brep"),
                sample("step/screw.step", "parts/screw.step")};
    }
    void expect_assembly_of_three(std::string const & file)
    {
        EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
        EXPECT_EQ(last_record().type(), sdbTranslationMerge);
        EXPECT_THAT(kit_component_names(file), ElementsAre("hammer", "nut", "screw"));
        EXPECT_GE(kit_solid_count(file), 2);
    }
};

class BatchEndToEnd : public kitBatchPageTest {
protected:
    void SetUp() override
    {
        kitBatchPageTest::SetUp();
        if (!have_samples())
            GTEST_SKIP() << "no sample files are installed";
    }
    /// What the report dialog says of the translation that was registered last.
    static std::string report()
    {
        sglReportDialog dialog(nullptr);
        std::string text;
        show_modal(dialog, [&] {
            auto & tree = *find<wxTreeCtrl>(dialog, "IDC_REPORT_TREE");
            tree.SelectItem(tree.GetLastChild(tree.GetRootItem()));
            text = find<sglEdit>(dialog, "IDC_REPORT_EDIT")->get_all_text().str();
            dialog.EndModal(wxID_OK);
        });
        return text;
    }
    /// Runs the batch and presses Cancel as soon as the dialog names that file.
    void translate_and_cancel_at(std::string const & file)
    {
        m_frame->CallAfter([file] {
            run_until(
                [&] {
                    auto * const dialog = progress_dialog();
                    return dialog && dialog->IsShownOnScreen() &&
                           find<wxStaticText>(*dialog, "IDC_PROGRESS_FILE_NAME")->GetLabel() ==
                               wxtStringConverter::to_wx(utString(file));
                },
                60, "the file at which the batch is cancelled");
            auto * const dialog = progress_dialog();
            ASSERT_TRUE(dialog);
            press(*dialog, "IDC_PROGRESS_CANCEL");
            run_until([dialog] { return find<wxWindow>(*dialog, "IDC_PROGRESS_OK")->IsEnabled(); }, 60,
                      "the end of the batch");
            press(*dialog, "IDC_PROGRESS_OK");
        });
        press(*m_page, kit_batch_page.translate);
        settle();
    }
};

} // namespace

TEST_F(EndToEnd, OneDroppedStepFileBecomesAnIgesFile)
{
    open<sglSingleFile>(kit_single_page);
    drop({sample("step/screw.step", "screw.step")});
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    expect_completed_iges("screw.igs");
}

TEST_F(EndToEnd, OneStepFileThatIsBrowsedForBecomesAnIgesFileOfTheUsersChoice)
{
    open<sglSingleFile>(kit_single_page);
    browse_input(sample("step/screw.step", "screw.step"));
    browse_output(folder() / "my screw.iges");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    expect_completed_iges("my screw.iges");
    EXPECT_FALSE(folder().exists("screw.igs"));
}

TEST_F(EndToEnd, ThreeDroppedFilesOfThreeFormatsBecomeOneAssembly)
{
    open<sglMergeFiles>(kit_merge_page);
    drop(three_parts());
    browse_output(folder() / "whole.step");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    expect_assembly_of_three(folder() / "whole.step");
}

TEST_F(EndToEnd, ThreeFilesThatAreBrowsedForBecomeOneAssembly)
{
    auto * const page = open<sglMergeFiles>(kit_merge_page);
    auto const parts = three_parts();
    {
        kitModal boxes;
        kit_expect_all_files_of(boxes, parts[0], parts.size(), run_until);
        press(*page, kit_merge_page.input_browse);
    }
    ASSERT_EQ(page->num_input_rows(), 3);
    browse_output(folder() / "whole.step");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    expect_assembly_of_three(folder() / "whole.step");
}

TEST_F(BatchEndToEnd, ThreeFilesThatAreBrowsedForAreTranslatedOneByOneDespiteABrokenOne)
{
    for (auto const & file : {sample("step/screw.step", "one.step"), step_file("broken.stp"),
                              sample("occ/mal_ecrou.brep", "nut.brep")}) {
        browse_input(file);
        add();
    }
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate();
    EXPECT_GT(std::filesystem::file_size(folder() / "one.igs"), 10'000u);
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    EXPECT_EQ(last_record().status(1), sdbProgressFailed);
    EXPECT_EQ(last_record().status(2), sdbProgressCompleted);
    EXPECT_FALSE(folder().exists("broken.igs"));
    EXPECT_TRUE(std::filesystem::exists(queued_output(2)));
}

TEST_F(BatchEndToEnd, SixDroppedFilesOfWhichThreeFailInTheirOwnWaysLeaveASummaryAndAReportOfEach)
{
    auto const a = sample("step/screw.step", "a.step"), b = step_file("b.stp"),
               c = sample("step/screw.step", "c.step"), d = sample("occ/mal_ecrou.brep", "d.brep"),
               e = sample("step/linkrods.step", "e.step"), f = sample("step/linkrods.step", "f.step");
    drop_on_queue({a, b, c, d, e, f});
    ASSERT_EQ(queued(), 6);
    std::filesystem::permissions(c, std::filesystem::perms::none);
    give_folder_to_ordinary_user(folder().path().string());
    kitAsOrdinaryUser const ordinary;
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    translate_and_cancel_at(e);

    ASSERT_EQ(boxes.said().size(), 1u);
    std::string const summary = boxes.said().front();
    EXPECT_THAT(summary, testing::StartsWith("The following files were successfully"));
    auto const place = [&](std::string const & text) { return summary.find("  " + text + "\n"); };
    auto const cancelled = summary.find("cancelled"), unread = summary.find("not be read");
    ASSERT_NE(cancelled, std::string::npos) << summary;
    ASSERT_NE(unread, std::string::npos) << summary;
    EXPECT_LT(place(a), place(d));
    EXPECT_LT(place(d), cancelled);
    EXPECT_GT(place(e), cancelled);
    EXPECT_LT(place(e), unread);
    EXPECT_GT(place(b), unread);
    EXPECT_GT(place(c), place(b));
    EXPECT_NE(place(f), std::string::npos);

    auto const & record = last_record();
    EXPECT_EQ(record.type(), sdbTranslationBatch);
    EXPECT_EQ(record.num_output_files(), 6);
    std::vector<sdbProgressFinish> statuses;
    for (int i = 0; i < 5; ++i)
        statuses.push_back(record.status(i));
    EXPECT_THAT(statuses, ElementsAre(sdbProgressCompleted, sdbProgressFailed, sdbProgressFailed,
                                      sdbProgressCompleted, sdbProgressCancelled));
    EXPECT_THAT(record.error_messages(2).str(), HasSubstr("ermission"));

    for (auto const * output : {"a.igs"})
        EXPECT_GT(std::filesystem::file_size(folder() / output), 10'000u);
    EXPECT_TRUE(std::filesystem::exists(queued_output(3)));
    for (auto const * none : {"b.igs", "c.igs", "e.igs"})
        EXPECT_FALSE(folder().exists(none)) << none;
    for (auto const & input : {a, b, c, d, e, f})
        EXPECT_TRUE(std::filesystem::exists(input)) << input;
    EXPECT_EQ(queued(), 6);

    auto const text = report();
    for (auto const & file : {a, b, c, d, e, f})
        EXPECT_THAT(text, HasSubstr(file));
    EXPECT_THAT(text, HasSubstr("ermission"));
}
