#include "sglUsageDialogs.h"

#include "kit/kitOrdinaryUser.h"
#include "windows/kit/kitHelpWindow.h"

#include <gmock/gmock.h>

namespace {

using ::testing::HasSubstr;

/// The two dialogs over a reporter of the test's own.
class UsageDialogs : public kitHelpOverDialog<kitWindowTest> {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
        initialise(folder() / "usage");
    }
    void TearDown() override
    {
        sgl_end_usage_dialogs();
        kitWindowTest::TearDown();
    }

    void initialise(std::string const & place)
    {
        m_reporter.initialise(app().application_information(), utString(place), "7.2",
                              "What is recorded, R&D included.");
        sgl_present_usage_dialogs(&m_reporter);
    }
    aniUsageRecord record() const { return m_reporter.usage_record(); }

    void at_start(std::function<void(wxDialog &)> const & script)
    {
        kitModal boxes;
        expect_dialog(boxes, script);
        m_reporter.show_startup_dialog(m_frame);
    }
    void from_menu(std::function<void(wxDialog &)> const & script)
    {
        kitModal boxes;
        expect_dialog(boxes, script);
        m_reporter.show_menu_dialog(m_frame);
    }
    static void end_with(wxDialog & dialog, int code)
    {
        key(code);
        run_until([&] { return !dialog.IsModal(); }, 20, "the end of the dialog");
    }
    static std::string records(wxDialog & dialog)
    {
        return find<wxTextCtrl>(dialog, "IDC_USAGE_RECORDS")->GetValue().utf8_string();
    }

    wxFrame * m_frame = nullptr;
    sglAnalytics m_reporter;
};

} // namespace

TEST_F(UsageDialogs, AskAtStartWhatIsToBeRecordedAndTakeAYes)
{
    at_start([&](wxDialog & dialog) {
        EXPECT_EQ(dialog.GetParent(), m_frame);
        EXPECT_EQ(find<wxStaticText>(dialog, "IDC_USAGE_TEXT")->GetLabelText(),
                  "What is recorded, R&D included.");
        click(*find<wxButton>(dialog, "wxID_YES"));
    });
    EXPECT_EQ(record().choice(), aniUsageAgreed);
    EXPECT_FALSE(folder().exists("usage/usage.txt"));
}

TEST_F(UsageDialogs, TakeEveryOtherEndOfTheQuestionForARefusal)
{
    for (int const way : std::initializer_list<int>{0, WXK_RETURN, WXK_ESCAPE, 1}) {
        std::filesystem::remove_all(folder() / "usage");
        at_start([&](wxDialog & dialog) {
            if (way > 1)
                end_with(dialog, way);
            else if (way == 1)
                dialog.Close();
            else
                click(*find<wxButton>(dialog, "wxID_NO"));
        });
        EXPECT_EQ(record().choice(), aniUsageRefused) << way;
    }
}

TEST_F(UsageDialogs, AskOnceAndNeverAgain)
{
    kitModal const no_boxes;
    for (bool const agreed : {false, true}) {
        ASSERT_TRUE(record().choose(agreed));
        m_reporter.show_startup_dialog(m_frame);
        EXPECT_EQ(record().choice(), agreed ? aniUsageAgreed : aniUsageRefused);
    }
}

TEST_F(UsageDialogs, HaveKeptARefusalWhileTheyAsk)
{
    at_start([&](wxDialog & dialog) {
        EXPECT_EQ(record().choice(), aniUsageRefused) << "should the program end here";
        end_with(dialog, WXK_ESCAPE);
    });
}

TEST_F(UsageDialogs, DoNotAskWhereNoAnswerCanBeKept)
{
    initialise(folder().write("a file", "") + "/usage");
    kitModal const no_boxes;
    m_reporter.show_startup_dialog(m_frame);
    EXPECT_EQ(record().choice(), aniUsageUndecided);
}

TEST_F(UsageDialogs, ShowFromTheMenuThatNothingIsRecorded)
{
    from_menu([&](wxDialog & dialog) {
        EXPECT_EQ(dialog.GetParent(), m_frame);
        EXPECT_FALSE(find<wxCheckBox>(dialog, "IDC_USAGE_AGREE")->GetValue());
        EXPECT_EQ(find<wxStaticText>(dialog, "IDC_USAGE_TEXT")->GetLabelText(),
                  "What is recorded, R&D included.");
        EXPECT_EQ(records(dialog), "Nothing is recorded.");
        EXPECT_FALSE(find<wxButton>(dialog, "IDC_USAGE_DELETE")->IsEnabled());
        EXPECT_EQ(find<wxStaticText>(dialog, "IDC_USAGE_FILE")->GetLabelText().utf8_string(),
                  folder() / "usage/usage.txt");
        end_with(dialog, WXK_ESCAPE);
    });
    EXPECT_FALSE(folder().exists("usage")) << "looking is no decision";
}

TEST_F(UsageDialogs, RecordFromTheTickOn)
{
    m_reporter.read_file(L"/a.cad", L"A");
    from_menu([&](wxDialog & dialog) {
        click(*find<wxCheckBox>(dialog, "IDC_USAGE_AGREE"));
        click(*find<wxButton>(dialog, "wxID_OK"));
    });
    EXPECT_EQ(record().choice(), aniUsageAgreed);
    m_reporter.read_file(L"/a.cad", L"STEP");
    from_menu([&](wxDialog & dialog) {
        EXPECT_TRUE(find<wxCheckBox>(dialog, "IDC_USAGE_AGREE")->GetValue());
        EXPECT_EQ(records(dialog), folder().read("usage/usage.txt"));
        EXPECT_THAT(records(dialog), HasSubstr("\tread\tSTEP\t"));
        end_with(dialog, WXK_ESCAPE);
    });
    EXPECT_EQ(m_reporter.num_read(L"STEP"), 1);
    EXPECT_EQ(m_reporter.num_read(L"A"), 0);
}

TEST_F(UsageDialogs, StopRecordingWhenTheTickIsTakenAwayWithTheKeyboard)
{
    ASSERT_TRUE(record().choose(true));
    m_reporter.read_file(L"/a.cad", L"STEP");
    from_menu([&](wxDialog & dialog) {
        focus(*find<wxCheckBox>(dialog, "IDC_USAGE_AGREE"));
        key(WXK_SPACE);
        EXPECT_FALSE(find<wxCheckBox>(dialog, "IDC_USAGE_AGREE")->GetValue());
        end_with(dialog, WXK_RETURN);
    });
    EXPECT_EQ(record().choice(), aniUsageRefused);
    m_reporter.read_file(L"/a.cad", L"STEP");
    EXPECT_EQ(m_reporter.num_read(L"STEP"), 1);
    EXPECT_TRUE(folder().exists("usage/usage.txt")) << "deleting them is another matter";
}

TEST_F(UsageDialogs, DeleteTheRecordsAtOnce)
{
    ASSERT_TRUE(record().choose(true));
    m_reporter.read_file(L"/a.cad", L"STEP");
    from_menu([&](wxDialog & dialog) {
        EXPECT_TRUE(find<wxButton>(dialog, "IDC_USAGE_DELETE")->IsEnabled());
        click(*find<wxButton>(dialog, "IDC_USAGE_DELETE"));
        EXPECT_FALSE(folder().exists("usage/usage.txt"));
        EXPECT_EQ(records(dialog), "Nothing is recorded.");
        EXPECT_FALSE(find<wxButton>(dialog, "IDC_USAGE_DELETE")->IsEnabled());
        end_with(dialog, WXK_ESCAPE);
    });
    EXPECT_EQ(record().choice(), aniUsageAgreed) << "cancelled";
}

TEST_F(UsageDialogs, KeepTheOldChoiceWhenTheyAreCancelled)
{
    ASSERT_TRUE(record().choose(true));
    from_menu([&](wxDialog & dialog) {
        click(*find<wxCheckBox>(dialog, "IDC_USAGE_AGREE"));
        click(*find<wxButton>(dialog, "wxID_CANCEL"));
    });
    EXPECT_EQ(record().choice(), aniUsageAgreed);
}

TEST_F(UsageDialogs, AreADecisionWhenTheyAreClosedWithOk)
{
    from_menu([&](wxDialog & dialog) { click(*find<wxButton>(dialog, "wxID_OK")); });
    EXPECT_EQ(record().choice(), aniUsageRefused);
}

TEST_F(UsageDialogs, StayOpenAndSayWhyWhenTheChoiceCannotBeKept)
{
    initialise(folder().write("a file", "") + "/usage");
    kitModal boxes;
    expect_dialog(boxes, [&](wxDialog & dialog) {
        click(*find<wxCheckBox>(dialog, "IDC_USAGE_AGREE"));
        click(*find<wxButton>(dialog, "wxID_OK"));
        EXPECT_TRUE(dialog.IsModal());
        EXPECT_TRUE(find<wxCheckBox>(dialog, "IDC_USAGE_AGREE")->GetValue());
        end_with(dialog, WXK_ESCAPE);
    });
    boxes.expect_message(wxID_OK);
    m_reporter.show_menu_dialog(m_frame);
    ASSERT_EQ(boxes.said().size(), 1u);
    EXPECT_THAT(boxes.said()[0], HasSubstr(folder() / "a file/usage: Not a directory"));
    EXPECT_EQ(record().choice(), aniUsageUndecided);
}

TEST_F(UsageDialogs, SayWhenTheRecordsCannotBeDeleted)
{
    ASSERT_TRUE(record().choose(true));
    m_reporter.read_file(L"/a.cad", L"STEP");
    kitModal boxes;
    expect_dialog(boxes, [&](wxDialog & dialog) {
        // The name has come to stand for a folder meanwhile.
        std::filesystem::remove(folder() / "usage/usage.txt");
        folder().write("usage/usage.txt/in", "");
        click(*find<wxButton>(dialog, "IDC_USAGE_DELETE"));
        end_with(dialog, WXK_ESCAPE);
    });
    boxes.expect_message(wxID_OK);
    m_reporter.show_menu_dialog(m_frame);
    ASSERT_EQ(boxes.said().size(), 1u);
    EXPECT_THAT(boxes.said()[0], HasSubstr("usage/usage.txt could not be deleted: Is a directory"));
}

TEST_F(UsageDialogs, OpenTheirPageOfTheHelpWithF1)
{
    std::string pages;
    auto const script = [&](wxDialog & dialog) {
        pages += help_page_over_dialog([] { key(WXK_F1); }) + "\n";
        EXPECT_TRUE(dialog.IsModal());
        end_with(dialog, WXK_ESCAPE);
    };
    at_start(script);
    from_menu(script);
    EXPECT_EQ(pages, "substituted/source/dialogs/usage.htm\nsubstituted/source/dialogs/usage.htm\n");
}

TEST_F(UsageDialogs, DoNothingBeforeTheReporterIsInitialised)
{
    sglAnalytics early;
    sgl_present_usage_dialogs(&early);
    kitModal const no_boxes;
    early.show_menu_dialog(m_frame);
    early.show_startup_dialog(m_frame);
    EXPECT_FALSE(early.is_initialised());
}
