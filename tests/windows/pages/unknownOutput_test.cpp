// An output of which nobody knows the format: there is nothing to press until one is chosen.

#include "sglMergeFiles.h"
#include "sglSingleFile.h"
#include "windows/pages/kitBatchPage.h"

namespace {

class UnknownOutput : public kitOpenPageTest {
protected:
    void expect_nothing_to_press_until_a_format_is_chosen()
    {
        EXPECT_EQ(output_file(), folder() / "out.machine");
        EXPECT_EQ(output_format(), unknown());
        EXPECT_FALSE(enabled(m_ids.output_resources));
        EXPECT_FALSE(can_translate());
        choose(m_ids.output_format, "STL");
        EXPECT_TRUE(enabled(m_ids.output_resources));
        EXPECT_TRUE(can_translate());
    }
};
using UnknownBatchOutput = kitBatchPageTest;

} // namespace

TEST_F(UnknownOutput, OnThePageForOneFileLeavesTranslateAndItsOptionsOff)
{
    open<sglSingleFile>(kit_single_page);
    browse_output(folder() / "out.machine");
    drop({step_file("part.stp")});
    expect_nothing_to_press_until_a_format_is_chosen();
}

TEST_F(UnknownOutput, OnThePageThatMergesLeavesTranslateAndItsOptionsOff)
{
    open<sglMergeFiles>(kit_merge_page);
    browse_output(folder() / "out.machine");
    drop({step_file("a.stp"), step_file("b.stp")});
    expect_nothing_to_press_until_a_format_is_chosen();
}

TEST_F(UnknownBatchOutput, LeavesItsOptionsAndAddOff)
{
    browse_output(folder() / "out.machine");
    EXPECT_EQ(output_format(), unknown());
    EXPECT_FALSE(enabled(m_ids.output_resources));
    EXPECT_FALSE(can_add());
}
