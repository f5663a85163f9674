#include "sglTDEditDisplayer.h"
#include "sglTDOstreamDisplayer.h"
#include "sglTDTreeDisplayer.h"

#include "kit/kitRecord.h"
#include "windows/kit/kitWindowTest.h"

#include <sstream>

namespace {

/// A report in the windows that show reports.
class ReportInWindows : public kitWindowTest {
protected:
    ReportInWindows()
    {
        record.input("/parts/a.step", "STEP")
            .output("/out/a.igs", "IGES")
            .ended(sdbProgressFailed, "", "one\r\ntwo")
            .verified(sdbVerdictDiffers, {{sdbWeightDifference, "volume", "Bolt", "", 3, 2, "Bolt is less"}});
    }
    static vmrabsAppInfo const * info() { return app().application_information(); }

    /// The items below `item`, one in a line, two blanks for each level.
    static std::string outline(wxTreeCtrl const & tree, wxTreeItemId const & item, int depth = 0)
    {
        std::string text;
        wxTreeItemIdValue cookie;
        for (auto child = tree.GetFirstChild(item, cookie); child.IsOk();
             child = tree.GetNextChild(item, cookie))
            text += std::string(static_cast<std::size_t>(depth), ' ') +
                    tree.GetItemText(child).utf8_string() + "\n" + outline(tree, child, depth + 2);
        return text;
    }

    kitRecord record;
};

} // namespace

TEST_F(ReportInWindows, IsTheSameInAPaneAndInATreeAsInALog)
{
    auto * const frame = show_frame();
    auto * const pane =
        new wxTextCtrl(frame, wxID_ANY, "before\n", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE);
    auto * const tree = new wxTreeCtrl(frame);
    auto * const sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(pane, wxSizerFlags(1).Expand());
    sizer->Add(tree, wxSizerFlags(1).Expand());
    frame->SetSizer(sizer);
    frame->Layout();
    tree->AddRoot("root");
    std::ostringstream log;
    sglTDOstreamDisplayer(&record.data, info(), &log).display();
    EXPECT_EQ(sglTDEditDisplayer(&record.data, info(), pane).display(), 1);
    EXPECT_EQ(sglTDTreeDisplayer(&record.data, info(), tree).display(), 1);

    wxString shown = pane->GetValue();
    EXPECT_EQ(shown.Replace("\r\n", "\n"), 15u) << shown;
    EXPECT_EQ(shown.utf8_string(), "before\n" + log.str());
    EXPECT_EQ(outline(*tree, tree->GetRootItem()), log.str());
}
