#include "windows/resources/kitOptions.h"

#include "sglResourceWidget.h"

#include "vmr/coResourceTableMaker.h"

namespace {

/// A page without controls over a caller's table and its working copy.
struct OptionsPage : kitOptionsTest {
    void SetUp() override
    {
        kitOptionsTest::SetUp();
        load(caller, "vmrTolTriangulate3d = 0.5\nvmrOptProcessSurfaces = true\n");
        load(working, "vmrTolTriangulate3d = 0.5\nvmrOptProcessSurfaces = true\n");
        page = new kitOptionsPage("Page", &caller, &panel());
        page->initialise(&working);
    }

    vmrTableInstance caller;
    vmrTableInstance working;
    kitOptionsPage * page = nullptr;
};

/// A widget that writes down what it is told.
struct Told : sglResourceWidget {
    Told(sglResourceOptionsPage * on, std::vector<std::string> & log)
        : sglResourceWidget(sglResourceDetails("name", "short", "long"), on), m_log(log)
    {
    }
    ~Told() override { m_log.push_back("deleted"); }
    void control_changed() override { m_log.push_back("control"); }
    void resource_changed() override { m_log.push_back("resource"); }
    void set_value() override { m_log.push_back("value"); }
    wxWindow * tooltip_window() override
    {
        m_log.push_back("tooltip");
        return nullptr;
    }

private:
    std::vector<std::string> & m_log;
};

} // namespace

TEST_F(OptionsPage, LooksForAValueInOverridesThenFileThenBuiltInDefaults)
{
    EXPECT_EQ(page->current_value("vmrTolTriangulate3d"), utString("0.5"));
    EXPECT_EQ(page->current_value("vmrTolPolygonizeCurve2d"), utString("0.01")); // known to the program alone
    EXPECT_EQ(page->current_value("nobody"), utString("Error"));
    working.add_resource("vmrTolTriangulate3d", "0.25");
    EXPECT_EQ(page->current_value("vmrTolTriangulate3d"), utString("0.25"));
    EXPECT_EQ(page->default_value("vmrTolTriangulate3d"), utString("0.5"));
    EXPECT_TRUE(page->value_from_table("vmrTolPolygonizeCurve2d", working.default_table()).invalid());
    EXPECT_EQ(page->current_value("vmrOptProcessSurfaces"), utString("True"));
}

TEST_F(OptionsPage, EditThatIsTakenBackLeavesNoChange)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->add_resource("vmrTolTriangulate3d", "0.5");
    page->apply_pressed();
    EXPECT_FALSE(working.modified());
}

TEST_F(OptionsPage, ApplyMakesAnOverrideOfAnEdit)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    EXPECT_FALSE(working.modified());
    EXPECT_EQ(page->apply_pressed(), 1);
    EXPECT_TRUE(working.modified());
    EXPECT_EQ(page->current_value("vmrTolTriangulate3d"), utString("0.125"));
    EXPECT_EQ(working.default_table()->value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(OptionsPage, CancelAfterApplyLeavesTheCallersTableAlone)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->apply_pressed();
    EXPECT_EQ(page->cancel_pressed(), 1);
    EXPECT_FALSE(caller.modified());
    EXPECT_EQ(caller.effective_value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(OptionsPage, OkSharesTheTablesWithTheCallerAndGivesItTheName)
{
    working.set_resource_file(utString(folder().write("other.rsc", "vmrTolTriangulate3d = 0.5\n")));
    page->add_resource("vmrTolTriangulate3d", "0.125");
    EXPECT_EQ(page->ok_pressed(), 1);
    EXPECT_EQ(caller.table(), working.table());
    EXPECT_EQ(caller.default_table(), working.default_table());
    EXPECT_EQ(caller.resource_file(), working.resource_file());
    EXPECT_EQ(caller.effective_value("vmrTolTriangulate3d"), utString("0.125"));
}

TEST_F(OptionsPage, ApplyAfterOkDoesNotReachTheCallerAgain)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->ok_pressed();
    page->add_resource("vmrTolTriangulate3d", "0.75");
    page->apply_pressed();
    EXPECT_EQ(caller.effective_value("vmrTolTriangulate3d"), utString("0.125"));
    EXPECT_EQ(working.effective_value("vmrTolTriangulate3d"), utString("0.75"));
}

TEST_F(OptionsPage, EditsOfAllPagesAddUp)
{
    auto * const other = new kitOptionsPage("Other", &caller, &panel());
    other->initialise(&working);
    page->add_resource("vmrTolTriangulate3d", "0.125");
    other->add_resource("vmrOptProcessSurfaces", "False");
    page->ok_pressed();
    other->ok_pressed();
    EXPECT_EQ(caller.effective_value("vmrTolTriangulate3d"), utString("0.125"));
    EXPECT_EQ(caller.effective_value("vmrOptProcessSurfaces"), utString("false"));
}

TEST_F(OptionsPage, ApplyKeepsOverridesAndLetsEditsWin)
{
    working.add_resource("vmrOptProcessSurfaces", "false");
    working.add_resource("vmrTolTriangulate3d", "0.25");
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->apply_pressed();
    EXPECT_EQ(working.table()->value("vmrOptProcessSurfaces"), utString("false"));
    EXPECT_EQ(working.table()->value("vmrTolTriangulate3d"), utString("0.125"));
}

TEST_F(OptionsPage, ApplyCarriesDefaultsThatChangedInMemoryOver)
{
    coResourceTableMaker::merge_entry("vmrTolTriangulate3d", "0.75", *working.default_table());
    coResourceTableMaker::merge_entry("vmrTolCurveOnSurface3d", "0.25", *working.default_table());
    page->apply_pressed();
    // The default table is that of the file again.
    EXPECT_EQ(working.default_table()->value("vmrTolTriangulate3d"), utString("0.5"));
    EXPECT_EQ(working.table()->value("vmrTolTriangulate3d"), utString("0.75"));
    EXPECT_EQ(working.table()->value("vmrTolCurveOnSurface3d"), utString("0.25"));
    EXPECT_FALSE(working.table()->value("vmrOptProcessSurfaces").str() == "true");
}

TEST_F(OptionsPage, OverrideGoesBeforeADefaultThatChangedInMemory)
{
    coResourceTableMaker::merge_entry("vmrTolTriangulate3d", "0.75", *working.default_table());
    working.add_resource("vmrTolTriangulate3d", "0.25");
    page->apply_pressed();
    EXPECT_EQ(page->current_value("vmrTolTriangulate3d"), utString("0.25"));
}

TEST_F(OptionsPage, ApplySeesAFileThatHasChangedMeanwhile)
{
    folder().write("test.rsc",
                   "vmrTolTriangulate3d = 0.375\nvmrOptProcessSurfaces = true\nvmrTolCurveOnSurface3d = 1\n");
    page->apply_pressed();
    EXPECT_EQ(working.default_table()->value("vmrTolTriangulate3d"), utString("0.375"));
    EXPECT_EQ(working.table()->value("vmrTolTriangulate3d"), utString("0.5"));
    EXPECT_EQ(working.default_table()->value("vmrTolCurveOnSurface3d"), utString("1"));
}

TEST_F(OptionsPage, IllegalEditIsNotApplied)
{
    page->add_resource("vmrTolTriangulate3d", "coarse");
    page->apply_pressed();
    EXPECT_EQ(working.effective_value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(OptionsPage, DefaultsGoBackToTheFile)
{
    working.add_resource("vmrTolTriangulate3d", "0.25");
    page->add_resource("vmrOptProcessSurfaces", "False");
    EXPECT_EQ(page->defaults_pressed(), 1);
    EXPECT_FALSE(working.modified());
    page->apply_pressed();
    EXPECT_FALSE(working.modified());
    EXPECT_EQ(page->current_value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(OptionsPage, InitialisingDropsTheEdits)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    EXPECT_EQ(page->initialise(&working), 1);
    page->apply_pressed();
    EXPECT_FALSE(working.modified());
}

TEST_F(OptionsPage, JudgesTexts)
{
    EXPECT_EQ(page->validate_resource_value("vmrTolTriangulate3d", ""), 0);
    EXPECT_EQ(page->validate_resource_value("vmrTolTriangulate3d", utString::make_invalid()), 0);
    EXPECT_EQ(page->validate_resource_value("vmrTolTriangulate3d", "x"), 0);
    EXPECT_NE(page->validate_resource_value("vmrTolTriangulate3d", "2"), 0);
    EXPECT_EQ(page->validate_resource_value("nobody", "2"), 0);
    EXPECT_TRUE(page->resource_is_available("vmrTolTriangulate3d", &working));
    EXPECT_FALSE(page->resource_is_available("vmrTolPolygonizeCurve2d", &working));
    EXPECT_FALSE(page->resource_is_available("nobody", &working));
}

TEST_F(OptionsPage, TellsItsWidgetsAndDeletesThem)
{
    std::vector<std::string> log;
    page->add_widget(utPtrClaim, new Told(page, log));
    page->initialise(&working); // the page is not on the screen yet
    EXPECT_TRUE(log.empty());
    initialise(*page);
    EXPECT_EQ(log, (std::vector<std::string>{"value", "tooltip"}));
    EXPECT_EQ(page->GetLabel(), "Page");
    page->initialise(&working);
    page->do_update(working);
    EXPECT_EQ(log, (std::vector<std::string>{"value", "tooltip", "resource", "resource"}));
    delete page;
    EXPECT_EQ(log.back(), "deleted");
}

namespace {

/// The same page where the file has been left alone for a while, so that applying need not read it again.
struct CalmPage : OptionsPage {
    void SetUp() override
    {
        OptionsPage::SetUp();
        run_until(
            [this] {
                working.initialise(working.resource_file());
                return working.is_as_loaded() != 0;
            },
            20, "the file to grow older");
        page->apply_pressed();
        other = new kitOptionsPage("Other", &caller, &panel());
        other->initialise(&working);
    }

    kitOptionsPage * other = nullptr;
};

} // namespace

TEST_F(CalmPage, EditsOfLaterPagesAddUpToTheSame)
{
    auto const * const defaults = working.default_table();
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->apply_pressed();
    other->add_resource("vmrOptProcessSurfaces", "False");
    other->apply_pressed();
    EXPECT_EQ(working.default_table(), defaults); // it was not read again
    EXPECT_EQ(working.table()->value("vmrTolTriangulate3d"), utString("0.125"));
    EXPECT_EQ(working.table()->value("vmrOptProcessSurfaces"), utString("false"));
    EXPECT_FALSE(caller.modified());
}

TEST_F(CalmPage, IllegalEditTakesTheOverrideAwayAsAFirstApplyDoes)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->apply_pressed();
    page->add_resource("vmrTolTriangulate3d", "coarse");
    page->apply_pressed();
    EXPECT_TRUE(working.table()->value("vmrTolTriangulate3d").invalid());

    load(working, "vmrTolTriangulate3d = 0.5\n"); // young again
    working.add_resource("vmrTolTriangulate3d", "0.125");
    page->apply_pressed();
    EXPECT_TRUE(working.table()->value("vmrTolTriangulate3d").invalid());
}

TEST_F(CalmPage, ApplyAfterOkDoesNotReachTheCallerAgain)
{
    page->add_resource("vmrTolTriangulate3d", "0.125");
    page->ok_pressed();
    other->ok_pressed();
    EXPECT_EQ(caller.table(), working.table());
    EXPECT_EQ(caller.resource_file(), working.resource_file());
    page->add_resource("vmrTolTriangulate3d", "0.75");
    page->apply_pressed();
    EXPECT_EQ(caller.effective_value("vmrTolTriangulate3d"), utString("0.125"));
    EXPECT_EQ(working.effective_value("vmrTolTriangulate3d"), utString("0.75"));
}

TEST_F(CalmPage, ChangesFromElsewhereAreSeenBetweenApplies)
{
    working.add_resource("unknown", "x"); // no resource of the file and of no type: applying drops it
    page->apply_pressed();
    EXPECT_TRUE(working.table()->value("unknown").invalid());
    coResourceTableMaker::merge_entry("vmrTolTriangulate3d", "0.75", *working.default_table());
    page->apply_pressed();
    EXPECT_EQ(working.default_table()->value("vmrTolTriangulate3d"), utString("0.5"));
    EXPECT_EQ(working.table()->value("vmrTolTriangulate3d"), utString("0.75"));
}

TEST_F(CalmPage, DefaultsNeedNotReadAFileThatIsAsItWas)
{
    auto const * const defaults = working.default_table();
    page->defaults_pressed();
    EXPECT_EQ(working.default_table(), defaults);
    working.add_resource("vmrTolTriangulate3d", "0.25");
    page->defaults_pressed();
    EXPECT_FALSE(working.modified());
}
