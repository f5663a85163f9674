#include "sglResourceString.h"

#include "sglMessageBox.h"
#include "sglMessageDisplayer.h"

#include "kit/kitAppTest.h"
#include "sdb/sdbStringTable.h"

#include <wx/msgdlg.h>

namespace {

struct Messages : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        app().pre_splash_screen_init();
    }
};

/// Control characters as a source writes them.
std::string with_escapes(std::string_view text)
{
    std::string shown;
    for (char const c : text)
        if (c == '\n' || c == '\r' || c == '\t')
            shown += c == '\n' ? "\\n" : c == '\r' ? "\\r" : "\\t";
        else
            shown += c;
    return shown;
}

} // namespace

TEST_F(Messages, AreFoundByNumberWithTheirContextAndShownWithoutIt)
{
    EXPECT_EQ(sdbStringTable::find_string("vmrgrlib", 1067), utString("d.report.tree::File : %s"));
    EXPECT_EQ(sglResourceString("vmrgrlib", 1067, utString("part.stp")), utString("File : part.stp"));
    EXPECT_EQ(sglResourceString("vmrgrlib", 1088), utString("Full Release"));
}

TEST_F(Messages, AreThoseOfTheApprovedListAndNoOthers)
{
    std::string table;
    int rows = 0;
    for (unsigned id = 0; id < 3000; ++id) {
        utString const key = sdbStringTable::find_string("vmrgrlib", id);
        if (key.empty())
            continue;
        table += std::to_string(id) + " " + with_escapes(key.view()) + "\n";
        ++rows;
    }
    EXPECT_EQ(table, kit_read_file(VMR_SOURCE_TREE "/tests/source/nls/approved/string_table.txt"));
    EXPECT_EQ(rows, 137);
}

TEST_F(Messages, HaveTheProgramsNamePutIn)
{
    utString const text = sglResourceString("vmrgrlib", 1129);
    EXPECT_EQ(text.locate_substring("Tester has detected some non-fatal problems"), 0) << text.view();
    EXPECT_LT(text.locate_substring("d.progress.messagebox"), 0);
}

TEST_F(Messages, SubstituteVariablesInsideArgumentsToo)
{
    EXPECT_EQ(sglResourceString("vmrgrlib", 1067, utString("[[COMPANY-NAME]].stp")),
              utString("File : Testing Company.stp"));
}

TEST_F(Messages, OfAnUnknownNumberAreEmptyAndShowNoBox)
{
    EXPECT_EQ(sglResourceString("vmrgrlib", 999999), utString());
    testing::internal::CaptureStderr();
    EXPECT_EQ(sglMessageBox("vmrgrlib", 999999, wxOK), 16);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Messages, GoToStandardErrorWithoutADisplay)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(sglMessageBox("vmrgrlib", 1242, wxOK | wxICON_EXCLAMATION, utString("help.zip")), wxID_OK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Tester: Error : Couldn't find the file 'help.zip'. Please check your installation.\n");
}

TEST_F(Messages, StyleFollowsFromTheFlags)
{
    EXPECT_EQ(sglWxMessageDisplayer::style_of(0), static_cast<unsigned>(wxOK));
    EXPECT_EQ(sglWxMessageDisplayer::style_of(1), static_cast<unsigned>(wxYES_NO));
    EXPECT_EQ(sglWxMessageDisplayer::style_of(2), static_cast<unsigned>(wxICON_HAND));
    EXPECT_EQ(sglWxMessageDisplayer::style_of(4), static_cast<unsigned>(wxICON_EXCLAMATION));
    EXPECT_EQ(sglWxMessageDisplayer::style_of(2 | 8), static_cast<unsigned>(wxICON_HAND));
    EXPECT_EQ(sglWxMessageDisplayer::style_of(8), static_cast<unsigned>(wxICON_HAND));
    EXPECT_EQ(sglWxMessageDisplayer::style_of(5), static_cast<unsigned>(wxYES_NO | wxICON_EXCLAMATION));
}

TEST_F(Messages, AreShownThroughTheDisplayerAndItsAnswerIsNoWithoutAUser)
{
    testing::internal::CaptureStderr();
    sglWxMessageDisplayer const displayer;
    EXPECT_EQ(displayer.message("vmrgrlib", 1118, sglIMessageDisplayer::ask_yes_no, utString("part.igs")), 0);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("The file part.igs already exists."),
              std::string::npos);
}

TEST_F(Messages, ThatAskAreAnsweredWithNoWhenNobodyIsThere)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(sglMessageBox("vmrgrlib", 1118, wxYES_NO, utString("part.igs")), wxID_NO);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST(ToolkitNumbers, AreThoseThatCallersRelyOn)
{
    EXPECT_EQ(wxID_OK, 5100);
    EXPECT_EQ(wxID_CANCEL, 5101);
    EXPECT_EQ(wxID_YES, 5103);
    EXPECT_EQ(wxID_NO, 5104);
    EXPECT_EQ(wxID_COPY, 5032);
    EXPECT_EQ(wxOK, 4);
    EXPECT_EQ(wxYES_NO, 10);
    EXPECT_EQ(wxICON_EXCLAMATION, 256);
    EXPECT_EQ(wxICON_HAND, 512);
    EXPECT_EQ(wxCONFIG_USE_GLOBAL_FILE, 2);
}
