#include "sglListCtrl.h"

#include "windows/kit/kitWindowTest.h"
#include "windows/kit/kitXrc.h"

namespace {

class ReportList : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_list = new sglListCtrl(show_frame(), wxID_ANY, wxDefaultPosition, wxSize(400, 200), wxLC_REPORT);
    }

    sglListCtrl * m_list = nullptr;
};

} // namespace

TEST_F(ReportList, FillsItsRowsFromAFlatArray)
{
    for (char const * title : {"File", "Format", "Result"})
        m_list->AppendColumn(title);
    m_list->fill({"a.stp", "STEP", "done", "b.igs", "IGES", "failed"});
    ASSERT_EQ(m_list->GetItemCount(), 2);
    EXPECT_EQ(m_list->GetItemText(0, 0), "a.stp");
    EXPECT_EQ(m_list->GetItemText(0, 2), "done");
    EXPECT_EQ(m_list->GetItemText(1, 1), "IGES");
    EXPECT_EQ(m_list->GetItemData(0), 0u);
    EXPECT_EQ(m_list->GetItemData(1), 3u);
}

TEST_F(ReportList, ReplacesItsRows)
{
    m_list->AppendColumn("File");
    m_list->fill({"a", "b", "c"});
    EXPECT_EQ(m_list->GetItemCount(), 3);
    m_list->fill({"d"});
    ASSERT_EQ(m_list->GetItemCount(), 1);
    EXPECT_EQ(m_list->GetItemText(0), "d");
}

TEST_F(ReportList, LeavesTheCellsEmptyThatAnIncompleteLastRowLacks)
{
    m_list->AppendColumn("File");
    m_list->AppendColumn("Format");
    m_list->fill({"a.stp", "STEP", "b.igs"});
    ASSERT_EQ(m_list->GetItemCount(), 2);
    EXPECT_EQ(m_list->GetItemText(1, 0), "b.igs");
    EXPECT_EQ(m_list->GetItemText(1, 1), "");
}

TEST_F(ReportList, HasNoRowsWithoutColumns)
{
    m_list->fill({"a", "b"});
    EXPECT_EQ(m_list->GetItemCount(), 0);
}

TEST_F(ReportList, MakesItsColumnsAsWideAsHeaderAndCells)
{
    m_list->AppendColumn("A header that is quite long");
    m_list->AppendColumn("F");
    m_list->fill({"a", "a cell that is longer than its header by far"});
    m_list->SetColumnWidth(0, 5);
    m_list->SetColumnWidth(1, 5);
    m_list->adjust_columns();
    EXPECT_GE(m_list->GetColumnWidth(0), m_list->GetTextExtent("A header that is quite long").x);
    EXPECT_GE(m_list->GetColumnWidth(1),
              m_list->GetTextExtent("a cell that is longer than its header by far").x);
}

TEST_F(ReportList, ComesOutOfResources)
{
    kitXrc const xrc(R"(<object class="wxPanel" name="PANEL"><object class="sglListCtrl" name="ID_TEST_LIST">
        <style>wxLC_REPORT|wxLC_SINGLE_SEL</style><size>120,90</size></object></object>)");
    auto * const panel = wxXmlResource::Get()->LoadPanel(m_list->GetParent(), "PANEL");
    ASSERT_TRUE(panel);
    auto * const list = find<sglListCtrl>(*panel, "ID_TEST_LIST");
    ASSERT_TRUE(list);
    EXPECT_TRUE(list->InReportView());
    EXPECT_TRUE(list->HasFlag(wxLC_SINGLE_SEL));
    EXPECT_EQ(list->GetSize(), wxSize(120, 90));
}
