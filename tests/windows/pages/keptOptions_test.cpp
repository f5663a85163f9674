// What the pages show after the user has kept the options that he set: a file, a format and options that
// belong together, on both sides.

#include "sglSingleFile.h"
#include "windows/pages/kitBatchPage.h"

#include <gmock/gmock.h>

namespace {

class KeptOptions : public kitOpenPageTest {
protected:
    void SetUp() override
    {
        kitOpenPageTest::SetUp();
        m_single = open<sglSingleFile>(kit_single_page);
    }
    static void edit(sglRow const & row, char const * name, char const * value)
    {
        ASSERT_TRUE(const_cast<sglRow &>(row).resource_table().add_resource(name, value));
    }
    void expect_first_file()
    {
        EXPECT_EQ(input_file(), folder() / "part.stp");
        EXPECT_EQ(input_format(), "STEP");
        EXPECT_EQ(output_file(), folder() / "part.igs");
        EXPECT_EQ(output_format(), "IGES");
        EXPECT_EQ(m_single->input_row(0).filename(), utString(folder() / "part.stp"));
        EXPECT_EQ(m_single->output_row(0).filename(), utString(folder() / "part.igs"));
        EXPECT_EQ(m_single->output_row(0).file_type(), utString("IGES"));
        EXPECT_TRUE(enabled(m_ids.input_resources));
        EXPECT_TRUE(enabled(m_ids.output_resources));
        EXPECT_TRUE(can_translate());
    }
    sglSingleFile * m_single = nullptr;
};

using KeptBatchOptions = kitBatchPageTest;

} // namespace

TEST_F(KeptOptions, KeepInputAndOutputOfTheFirstFileWhenAnotherIsDropped)
{
    drop({step_file("part.stp")});
    edit(m_single->input_row(0), "stepReadNames", "false");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    drop({iges_file("other.igs")});
    expect_first_file();
    EXPECT_TRUE(m_single->input_row(0).resource_table().modified());
}

TEST_F(KeptOptions, KeepInputAndOutputOfTheFirstFileWhenAnotherIsBrowsedFor)
{
    drop({step_file("part.stp")});
    edit(m_single->input_row(0), "stepReadNames", "false");
    kitModal boxes;
    boxes.expect_file(iges_file("other.igs"));
    boxes.expect_message(wxID_NO);
    press(*m_page, m_ids.input_browse);
    expect_first_file();
}

TEST_F(KeptOptions, KeepTheOptionsOfTheOutputWithThoseOfTheInput)
{
    drop({step_file("part.stp")});
    edit(m_single->input_row(0), "stepReadNames", "false");
    edit(m_single->output_row(0), "igesWriteNames", "false");
    kitModal boxes;
    boxes.expect_message(wxID_YES); // those of the output may go, as that is no longer IGES
    boxes.expect_message(wxID_NO);
    drop({iges_file("other.igs")});
    expect_first_file();
    EXPECT_EQ(m_single->output_row(0).resource_table().effective_value("igesWriteNames"), utString("false"));
}

TEST_F(KeptOptions, BelongToAFormatThatTheUserHasChosenForTheFile)
{
    browse_input(folder().write("part.dat", "text"));
    choose(m_ids.input_format, "STEP");
    edit(m_single->input_row(0), "stepReadNames", "false");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    choose(m_ids.input_format, "STL");
    EXPECT_EQ(input_file(), folder() / "part.dat");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_TRUE(m_single->input_row(0).resource_table().modified());
    EXPECT_TRUE(enabled(m_ids.input_resources));
}

TEST_F(KeptOptions, AreShownWithTheResourceFileThatTheyCameFrom)
{
    drop({step_file("part.stp")});
    edit(m_single->input_row(0), "stepReadNames", "false");
    const_cast<sglRow &>(m_single->input_row(0))
        .resource_table()
        .set_resource_file(utString(folder() / "mine.rsc"));
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    choose(m_ids.input_format, "STL");
    EXPECT_EQ(input_resource(), "mine.rsc");
    EXPECT_TRUE(m_single->input_row(0).resource_table().modified());
}

TEST_F(KeptOptions, OfAnOutputWhoseEndingSaysNothingStayWithItsFormat)
{
    drop({step_file("part.stp")});
    browse_output(folder() / "part.machine");
    ASSERT_EQ(output_format(), "IGES");
    edit(m_single->output_row(0), "igesWriteNames", "false");
    m_single->UserEdited(0);
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    drop({iges_file("other.igs")});
    EXPECT_EQ(output_file(), folder() / "part.machine");
    EXPECT_EQ(output_format(), "IGES");
    EXPECT_EQ(m_single->output_row(0).file_type(), utString("IGES"));
    EXPECT_TRUE(m_single->output_row(0).resource_table().modified());
}

TEST_F(KeptBatchOptions, BelongToAFormatThatTheUserHasChosenForTheFile)
{
    browse_input(step_file("part.dat"));
    ASSERT_EQ(input_format(), "STEP");
    add();
    folder().write("part.dat", "text"); // its content no longer tells
    auto & options = const_cast<sglRow &>(m_batch->input_row(0)).resource_table();
    ASSERT_TRUE(options.add_resource("stepReadNames", "false"));
    choose_lines({});
    click_line(0);
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    choose(m_ids.input_format, "STL");
    EXPECT_EQ(input_file(), folder() / "part.dat");
    EXPECT_EQ(input_format(), "STEP");
    EXPECT_EQ(input_resource(), "step.rsc");
    EXPECT_TRUE(can_save());
}
