#include "sglStartupItemChecker.h"

#include "windows/pages/kitSettings.h"

#include "sglMenu.h"

#include <gmock/gmock.h>
#include <memory>

namespace {

using ::testing::ElementsAre;

constexpr char const * modified = "The contents of the start up file have been modified by another user.\n"
                                  "Do you wish to save your changes anyway?";
constexpr char const * not_saved = "Warning : Unable to make changed settings the default.";

class StartupItem : public kitSettingsTest {
protected:
    void SetUp() override
    {
        kitSettingsTest::SetUp();
        m_bar.reset(sglMenu("vmrgrlib").create_menu_bar("MB_PROPERTYSHEET_MENU"));
        ASSERT_TRUE(m_bar);
    }

    void tick(bool on) { m_bar->Check(XRCID("IDM_VIEWER_STARTUP"), on); }
    bool ticked() const { return m_bar->IsChecked(XRCID("IDM_VIEWER_STARTUP")); }
    void check(int checked_is_yes, int checked)
    {
        sglStartupItemChecker(m_bar.get())
            .check_startup_menu_item("IDM_VIEWER_STARTUP", sduSTARTASVIEWER, checked_is_yes, checked);
    }

private:
    std::unique_ptr<wxMenuBar> m_bar;
};

} // namespace

TEST_F(StartupItem, StoresYesWhereTickAndMeaningAgree)
{
    kitModal const no_boxes;
    check(1, 1);
    EXPECT_EQ(on_disk(), utString("yes"));
    EXPECT_TRUE(ticked());
    check(1, 0);
    EXPECT_EQ(on_disk(), utString("no"));
    EXPECT_FALSE(ticked());
    check(0, 0);
    EXPECT_EQ(on_disk(), utString("yes"));
    EXPECT_FALSE(ticked());
    check(0, 5);
    EXPECT_EQ(on_disk(), utString("no"));
    EXPECT_TRUE(ticked());
}

TEST_F(StartupItem, AsksBeforeItWritesOverWhatAnotherProgramStored)
{
    check(0, 1);
    write_elsewhere("maybe");
    kitModal boxes;
    boxes.expect_message(wxID_YES);
    check(0, 0);
    EXPECT_THAT(boxes.said(), ElementsAre(modified));
    EXPECT_EQ(boxes.styles()[0] & (wxYES_NO | wxCANCEL), wxYES_NO | wxCANCEL);
    EXPECT_EQ(on_disk(), utString("yes"));
    EXPECT_FALSE(ticked());
}

TEST_F(StartupItem, CancelLeavesTheSettingsAndTheTickThatTheUserSet)
{
    check(0, 1);
    write_elsewhere("maybe");
    // The menu has taken the tick away by itself.
    tick(false);
    kitModal boxes;
    boxes.expect_message(wxID_CANCEL);
    check(0, 0);
    EXPECT_EQ(on_disk(), utString("maybe"));
    EXPECT_EQ(in_this_run(), utString("no"));
    EXPECT_FALSE(ticked());
}

TEST_F(StartupItem, NoChangesTheValueForThisRunWithoutWritingTheFile)
{
    check(0, 1);
    write_elsewhere("maybe");
    kitModal boxes;
    boxes.expect_message(wxID_NO);
    check(0, 0);
    EXPECT_EQ(on_disk(), utString("maybe"));
    EXPECT_EQ(in_this_run(), utString("yes"));
    EXPECT_FALSE(ticked());
}

TEST_F(StartupItem, SaysThatSettingsCannotBeSavedAndKeepsThemForThisRun)
{
    // A folder stands where the file would be.
    std::filesystem::create_directories(path());
    load();
    kitModal boxes;
    boxes.expect_message(wxID_OK);
    check(0, 1);
    EXPECT_THAT(boxes.said(), ElementsAre(not_saved));
    EXPECT_TRUE(boxes.styles()[0] & wxICON_EXCLAMATION);
    EXPECT_EQ(in_this_run(), utString("no"));
    EXPECT_TRUE(ticked());
}
