// What is proposed as an output is never a file that is read.

#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "windows/pages/kitBatchPage.h"

#include <gmock/gmock.h>

namespace {

using ProposedName = kitOpenPageTest;
using ProposedBatchName = kitBatchPageTest;

} // namespace

TEST_F(ProposedName, IsNotTheInputThatHasTheEndingOfTheOutput)
{
    open<sglSingleFile>(kit_single_page);
    drop({step_file("part.igs")});
    ASSERT_EQ(input_format(), "STEP");
    ASSERT_EQ(output_format(), "IGES");
    EXPECT_EQ(output_file(), folder() / "part-2.igs");
    EXPECT_TRUE(can_translate());
}

TEST_F(ProposedName, IsNotTheInputUnderAnotherPath)
{
    open<sglSingleFile>(kit_single_page);
    step_file("part.stp");
    std::filesystem::create_symlink(folder() / "part.stp", folder() / "part.igs");
    drop({folder() / "part.stp"});
    EXPECT_EQ(output_file(), folder() / "part-2.igs");
}

TEST_F(ProposedName, IsNotTheInputAfterAChangeOfFormatAndLosesItsNumberWithTheNext)
{
    auto * const page = open<sglSingleFile>(kit_single_page);
    drop({step_file("part.stp")});
    choose(m_ids.output_format, "STEP");
    EXPECT_EQ(output_file(), folder() / "part-2.stp");
    EXPECT_EQ(page->output_row(0).filename(), utString(folder() / "part-2.stp"));
    choose(m_ids.output_format, "STL");
    EXPECT_EQ(output_file(), folder() / "part.stl");
}

TEST_F(ProposedName, IsNoneOfTheMergedFiles)
{
    open<sglMergeFiles>(kit_merge_page);
    drop({step_file("part.stp"), step_file("part-2.stp")});
    choose(m_ids.output_format, "STEP");
    EXPECT_EQ(output_file(), folder() / "part-3.stp");
}

TEST_F(ProposedName, IsStillTheNameOfAFileThatIsNoLongerRead)
{
    open<sglSingleFile>(kit_single_page);
    drop({step_file("part.stp")});
    drop({iges_file("part.igs")});
    ASSERT_EQ(input_format(), "IGES");
    ASSERT_EQ(output_format(), "STEP");
    EXPECT_EQ(output_file(), folder() / "part.stp") << "about which the page asks";
}

TEST_F(ProposedName, IsNotTheInputWhereTheOptionsOfAnOutputOfThatNameAreKept)
{
    auto * const page = open<sglSingleFile>(kit_single_page);
    drop({step_file("a.stp")});
    choose(m_ids.output_format, "STL");
    auto & options = const_cast<sglRow &>(page->output_row(0)).resource_table();
    ASSERT_TRUE(options.add_resource("stlWriteForm", "text"));
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    drop({folder().write("a.stl", "solid a\nendsolid a\n")});
    EXPECT_EQ(input_file(), folder() / "a.stl");
    EXPECT_EQ(output_file(), folder() / "a-2.stl");
    EXPECT_EQ(page->output_row(0).filename(), utString(folder() / "a-2.stl"));
    EXPECT_TRUE(options.modified());
}

TEST_F(ProposedBatchName, IsNoInputOfTheQueue)
{
    drop({step_file("part.stp")});
    add();
    drop({step_file("part.step")});
    choose(m_ids.output_format, "STEP");
    EXPECT_EQ(output_file(), folder() / "part-2.stp");
}

TEST_F(ProposedBatchName, IsNoInputOfTheQueueForAFileThatIsDroppedOnIt)
{
    queue_pair(step_file("part.igs"), folder() / "other.igs");
    drop_on_queue({step_file("part.stp")});
    ASSERT_EQ(queued(), 2);
    EXPECT_EQ(queued_output(1), folder() / "part-2.igs");
}
