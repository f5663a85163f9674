#include "translation/sglStreamText.h"

#include "s2s/s2sBatchMarker.h"

#include <gtest/gtest.h>

namespace {

utString section(utString const & header, utString const & text)
{
    return s2s_batch_marker() + "\n" + header + "\n" + s2s_batch_marker() + "\n" + text;
}

} // namespace

TEST(BatchSections, AreWhatStandsBehindTheHeaderAndBeforeTheNextMarker)
{
    utString text = section("first", "one\n") + section("second", "\n\ntwo\n\n");
    EXPECT_EQ(sgl_cut_batch_section(text), utString("one\n"));
    EXPECT_EQ(text, section("second", "\n\ntwo\n\n"));
    EXPECT_EQ(sgl_cut_batch_section(text), utString("two\n\n"));
    EXPECT_EQ(text, utString(""));
    EXPECT_EQ(sgl_cut_batch_section(text), utString(""));
}

TEST(BatchSections, StayForTheNextTranslationWhenOneCutsNothing)
{
    utString text =
        section("first", "one\n") + section("cancelled", "stopped\n") + section("third", "three\n");
    sgl_cut_batch_section(text);
    EXPECT_EQ(sgl_cut_batch_section(text), utString("stopped\n"));
}

TEST(BatchSections, MayBeEmpty)
{
    utString text = section("first", "") + section("second", "");
    EXPECT_EQ(sgl_cut_batch_section(text), utString(""));
    EXPECT_EQ(sgl_cut_batch_section(text), utString(""));
}

TEST(RecordText, HasLineEndsThatReportsTakeApart)
{
    EXPECT_EQ(sgl_record_text("one\ntwo\r\n\nthree"), utString("one\r\ntwo\r\n\r\nthree"));
    EXPECT_EQ(sgl_record_text("\n"), utString("\r\n"));
    EXPECT_EQ(sgl_record_text(""), utString(""));
}

TEST(BatchEntries, EndAsTheirStatusSays)
{
    struct {
        int status;
        sdbProgressFinish finish;
    } const rows[] = {{-1, sdbProgressUnknown}, {0, sdbProgressUnknown},   {1, sdbProgressFailed},
                      {2, sdbProgressFailed},   {3, sdbProgressFailed},    {4, sdbProgressCompleted},
                      {5, sdbProgressUnknown},  {6, sdbProgressCancelled}, {7, sdbProgressUnknown}};
    for (auto const & row : rows)
        EXPECT_EQ(sgl_finish_of(static_cast<s2sThreadStatus>(row.status)), row.finish) << row.status;
}
