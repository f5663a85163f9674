// What the pages make of files and folders that are not as they should be: each time a message that names the
// file, and nothing lost.

#include "kit/kitAsOrdinaryUser.h"
#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "windows/pages/kitBatchPage.h"

#include <gmock/gmock.h>
#include <sys/mount.h>

namespace {

using testing::HasSubstr;

template <class PageTest>
class ToldAtTheEnd : public PageTest {
protected:
    /// Presses Translate and gives what is said in the end, the title of the message and the details.
    std::string translated()
    {
        kitModal boxes;
        boxes.expect_message(wxID_OK);
        this->translate();
        return boxes.said().empty() ? "" : boxes.said().back();
    }
};
class BadInput : public ToldAtTheEnd<kitOpenPageTest> {
protected:
    std::string errors(int index = 0) { return last_record().error_messages(index).str(); }
};
using BadBatch = ToldAtTheEnd<kitBatchPageTest>;

/// A name that is Latin-1 and no UTF-8.
constexpr char const * latin1 = "caf\xe9.stp";

} // namespace

TEST_F(BadInput, AFolderOnThePageForOneFileIsNamedInAMessage)
{
    open<sglSingleFile>(kit_single_page);
    std::filesystem::create_directory(folder() / "parts");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder() / "parts"});
    EXPECT_EQ(boxes.said()[0], (folder() / "parts") + " is a folder. Please choose the files in it instead.");
    EXPECT_EQ(input_format(), unknown());
    EXPECT_FALSE(can_translate());
}

TEST_F(BadBatch, AFolderOnTheInputIsNamedInAMessage)
{
    std::filesystem::create_directory(folder() / "parts.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder() / "parts.stp"});
    EXPECT_THAT(boxes.said()[0], HasSubstr((folder() / "parts.stp") + " is a folder"));
    EXPECT_FALSE(can_add());
}

TEST_F(BadBatch, ALinkThatLeadsNowhereIsListedAmongTheFilesThatCouldNotBeRead)
{
    std::filesystem::create_symlink(folder() / "gone.stp", folder() / "link.stp");
    drop_on_queue({folder() / "link.stp"});
    ASSERT_EQ(queued(), 1);
    EXPECT_THAT(translated(), HasSubstr(folder() / "link.stp"));
    EXPECT_EQ(last_record().status(0), sdbProgressFailed);
    EXPECT_FALSE(folder().exists("link.igs"));
    EXPECT_TRUE(folder().exists("link.stp"));
}

TEST_F(BadBatch, AFileThatVanishesBeforeTranslateIsListedAndTheOthersAreTranslated)
{
    auto const cube =
        folder().write("cube.stl", "solid a\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\n"
                                   "vertex 1 0 0\nvertex 0 1 0\nendloop\nendfacet\nendsolid a\n");
    drop_on_queue({step_file("gone.stp"), cube});
    ASSERT_EQ(queued(), 2);
    std::filesystem::remove(folder() / "gone.stp");
    EXPECT_THAT(translated(), HasSubstr(folder() / "gone.stp"));
    EXPECT_EQ(last_record().status(0), sdbProgressFailed);
    EXPECT_EQ(last_record().status(1), sdbProgressCompleted);
    EXPECT_TRUE(std::filesystem::exists(queued_output(1)));
}

TEST_F(BadInput, AFileThatMayNotBeReadIsNamedAtOnceWhereItsNameDoesNotTellItsFormat)
{
    open<sglSingleFile>(kit_single_page);
    auto const file = folder().write("secret.part", "ISO-10303-21;\n");
    std::filesystem::permissions(file, std::filesystem::perms::none);
    give_folder_to_ordinary_user(folder().path().string());
    kitAsOrdinaryUser const ordinary;
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({file});
    EXPECT_EQ(boxes.said()[0],
              "Warning: " + file + " exists but cannot be read. It may be in use by another program.");
    EXPECT_EQ(input_file(), file);
    EXPECT_FALSE(can_translate());
}

TEST_F(BadInput, AFileThatMayNotBeReadFailsWithTheReason)
{
    open<sglSingleFile>(kit_single_page);
    auto const file = step_file("secret.stp");
    drop({file});
    std::filesystem::permissions(file, std::filesystem::perms::none);
    give_folder_to_ordinary_user(folder().path().string());
    kitAsOrdinaryUser const ordinary;
    EXPECT_THAT(translated(), HasSubstr(file));
    EXPECT_THAT(errors(), HasSubstr("ermission"));
    EXPECT_TRUE(folder().exists("secret.stp"));
    EXPECT_FALSE(folder().exists("secret.igs"));
}

TEST_F(BadInput, EveryNameComesBackFromTheToolkitsPathsAsItWas)
{
    for (std::string const name : {"/a/part.stp", "/a/Gr\xc3\xb6.stp", "/a/caf\xe9.stp", "/a\xc3/\xff",
                                   "/ok\xed\xa0\x80z", "/\xf4\x80\x82\x80"}) {
        wxString const path = wxtStringConverter::path_to_wx(utString(name));
        EXPECT_EQ(wxtStringConverter::path_to_ut(path), utString(name)) << testing::PrintToString(name);
        EXPECT_EQ(std::string(path.fn_str()), name) << "what the toolkit's file functions see";
        EXPECT_FALSE(path.utf8_string().empty()) << "what its controls show";
        for (auto const & character : path)
            EXPECT_FALSE(character.GetValue() >= 0xD800 && character.GetValue() <= 0xDFFF);
    }
}

TEST_F(BadInput, ANameThatIsNoTextIsTakenAsItIsAndRefusedInPlainWordsByTheTranslation)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    auto * const page = open<sglSingleFile>(kit_single_page);
    // Its neighbours have the names that a careless conversion would make of it.
    for (char const * const other : {"caf.stp", "caf?.stp", "caf\xc3\xa9.stp", "caf\xef\xbf\xbd.stp"})
        sample("step/screw.step", other);
    auto const file = sample("step/screw.step", latin1);
    auto const files = folder().count();
    drop({file});
    EXPECT_EQ(page->input_row(0).filename(), utString(file));
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(page->output_row(0).filename(), utString(folder() / "caf\xe9.igs"));
    EXPECT_FALSE(list(kit_single_page.input_list).GetItemText(0).utf8_string().empty());
    EXPECT_THAT(translated(), HasSubstr("Unable to read input file"));
    EXPECT_THAT(errors(), HasSubstr("is not valid UTF-8 text. Rename the file or the folder."));
    EXPECT_EQ(folder().count(), files) << "another file was translated";
}

TEST_F(BadInput, NamesThatAreNoTextAreKeptApartInTheListOfThePageThatMerges)
{
    auto * const page = open<sglMergeFiles>(kit_merge_page);
    auto const a = step_file("caf\xe9.stp"), b = step_file("caf\xe8.stp");
    drop({a, b});
    ASSERT_EQ(page->num_input_rows(), 2);
    EXPECT_EQ(page->input_row(0).filename(), utString(a));
    EXPECT_EQ(page->input_row(1).filename(), utString(b));
}

TEST_F(BadBatch, ANameThatIsNoTextIsQueuedAndShown)
{
    auto const file = step_file(latin1);
    drop_on_queue({file});
    ASSERT_EQ(queued(), 1);
    EXPECT_EQ(m_batch->input_row(0).filename(), utString(file));
    EXPECT_EQ(queued_output(0), folder() / "caf\xe9.igs");
    EXPECT_THAT(line(0), testing::StartsWith(folder() / "caf"));
    click_line(0);
    EXPECT_EQ(m_batch->input_row(0).filename(), utString(file));
}

TEST_F(BadInput, AFolderThatMayNotBeWrittenIsToldOfWhenAnOutputIsChosen)
{
    auto * const page = open<sglSingleFile>(kit_single_page);
    drop({step_file("part.stp")});
    std::filesystem::create_directory(folder() / "locked");
    give_folder_to_ordinary_user(folder().path().string());
    std::filesystem::permissions(folder() / "locked",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    kitAsOrdinaryUser const ordinary;
    kitModal boxes;
    boxes.expect_file(folder() / "locked/part.igs");
    boxes.expect_message(wxID_OK);
    press(*page, kit_single_page.output_browse);
    EXPECT_EQ(boxes.said()[0], "No write access granted for the selected file");
    EXPECT_EQ(output_file(), folder() / "part.igs");
}

TEST_F(BadInput, AFolderThatMayNotBeWrittenFailsWithTheReasonWhenTheOutputWasProposed)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    open<sglSingleFile>(kit_single_page);
    std::filesystem::create_directory(folder() / "locked");
    drop({sample("step/screw.step", "locked/screw.step")});
    give_folder_to_ordinary_user(folder().path().string());
    std::filesystem::permissions(folder() / "locked",
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    kitAsOrdinaryUser const ordinary;
    EXPECT_EQ(translated(), "Fatal error writing to output file");
    EXPECT_THAT(errors(), HasSubstr("ermission"));
    EXPECT_TRUE(folder().exists("locked/screw.step"));
    EXPECT_FALSE(folder().exists("locked/screw.igs"));
    EXPECT_TRUE(can_translate());
}

TEST_F(BadInput, AFullDiskIsToldOfAndNothingHalfIsLeft)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    std::filesystem::create_directory(folder() / "disk");
    if (getuid() != 0 || mount("vmr-test", (folder() / "disk").c_str(), "tmpfs", 0, "size=16k") != 0)
        GTEST_SKIP() << "a small disk can only be made by root";
    open<sglSingleFile>(kit_single_page);
    browse_output(folder() / "disk/screw.igs");
    drop({sample("step/screw.step", "screw.step")});
    EXPECT_EQ(output_file(), folder() / "disk/screw.igs");
    EXPECT_EQ(translated(), "Fatal error writing to output file");
    EXPECT_THAT(errors(), HasSubstr("make room on the disk"));
    EXPECT_TRUE(std::filesystem::is_empty(folder() / "disk"));
    EXPECT_EQ(umount((folder() / "disk").c_str()), 0);
}

TEST_F(BadInput, AnOutputThatIsOneOfTheMergedFilesIsRefusedAndNothingIsLost)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    open<sglMergeFiles>(kit_merge_page);
    auto const screw = sample("step/screw.step", "screw.step"),
               nut = sample("occ/mal_ecrou.brep", "nut.brep");
    auto const content = kit_read_file(screw);
    drop({nut, screw});
    browse_output(screw);
    EXPECT_EQ(translated(), "Fatal error writing to output file");
    EXPECT_THAT(errors(), HasSubstr(screw + " is also an input file"));
    EXPECT_EQ(kit_read_file(screw), content);
}

TEST_F(BadBatch, AnOutputThatIsTheInputThroughALinkIsRefusedAndNothingIsLost)
{
    if (!have_samples())
        GTEST_SKIP() << "no sample files are installed";
    auto const screw = sample("step/screw.step", "screw.step");
    auto const content = kit_read_file(screw);
    std::filesystem::create_directory(folder() / "link");
    queue_pair(screw, folder() / "out.igs");
    queue_pair(screw, folder() / "link/screw.step");
    ASSERT_EQ(queued(), 2);
    // The page has seen nothing wrong in it by then.
    std::filesystem::remove(folder() / "link");
    std::filesystem::create_directory_symlink(folder().path(), folder() / "link");
    EXPECT_THAT(translated(), HasSubstr("screw.step"));
    EXPECT_EQ(last_record().status(0), sdbProgressCompleted);
    EXPECT_EQ(last_record().status(1), sdbProgressFailed);
    EXPECT_THAT(last_record().error_messages(1).str(), HasSubstr("is also an input file"));
    EXPECT_EQ(kit_read_file(screw), content);
}

TEST_F(BadBatch, AnOutputThatIsAnInputOfTheQueueThroughALinkIsToldOf)
{
    auto const part = step_file("part.stp");
    std::filesystem::create_directory_symlink(folder().path(), folder() / "link");
    queue_pair(part, folder() / "out.igs");
    drop({step_file("b.stp")});
    browse_output(folder() / "link/part.stp");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    add();
    EXPECT_THAT(boxes.said()[0],
                HasSubstr((folder() / "link/part.stp") + " clashes with an input file in the batch."));
    EXPECT_EQ(queued(), 1);
}

TEST_F(BadBatch, TwoOutputsThatAreOneFileThroughALinkAreToldOf)
{
    std::filesystem::create_directory(folder() / "out");
    std::filesystem::create_directory_symlink(folder() / "out", folder() / "link");
    queue_pair(step_file("a.stp"), folder() / "out/part.igs");
    drop({step_file("b.stp")});
    browse_output(folder() / "link/part.igs");
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    add();
    EXPECT_THAT(boxes.said()[0],
                HasSubstr((folder() / "link/part.igs") + " clashes with an output file in the batch."));
    EXPECT_EQ(queued(), 1);
}

TEST_F(BadInput, PathsThatDifferInCaseOnlyAreTwoFiles)
{
    auto * const page = open<sglMergeFiles>(kit_merge_page);
    drop({step_file("part.stp"), step_file("PART.stp"), step_file("Part.stp")});
    EXPECT_EQ(page->num_input_rows(), 3);
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    drop({folder() / "PART.stp"});
    EXPECT_EQ(boxes.said()[0], "Duplicate file name");
    EXPECT_EQ(page->num_input_rows(), 3);
}
