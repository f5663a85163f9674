#include "sglAnalytics.h"

#include "ani/aniUsageDialogs.h"
#include "kit/kitAppTest.h"
#include "sdu/sduServiceKeys.h"
#include "sdu/sduServicePtr.h"

#include <vector>

namespace {

/// Writes down what the usage-data library is asked to show.
class UsageReporter : public kitAppTest {
protected:
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
        aniUsageDialogs::set_presenter(
            [this](aniUsageDialogsShow show, void * parent, apString const & text) {
                shown.push_back({show, parent, text.utf8()});
                return 0;
            });
    }
    void TearDown() override
    {
        aniUsageDialogs::set_presenter(nullptr);
        kitAppTest::TearDown();
    }

    sglAnalytics & reporter() { return *app().analytics_reporter(); }
    void initialise(std::string const & place)
    {
        reporter().initialise(app().application_information(), utString(place), "7.2", "M\xC3\xBCssen wir?");
    }

    struct Shown {
        int show;
        void * parent;
        std::string text;
        bool operator==(Shown const &) const = default;
    };
    std::vector<Shown> shown;
};

} // namespace

TEST_F(UsageReporter, ShowsNoDialogBeforeItIsInitialised)
{
    reporter().show_menu_dialog(nullptr);
    reporter().show_startup_dialog(nullptr);
    EXPECT_TRUE(shown.empty());
}

TEST_F(UsageReporter, ShowsNoDialogWhenInitialiseHasFailed)
{
    initialise("");
    EXPECT_FALSE(reporter().is_initialised());
    reporter().show_menu_dialog(nullptr);
    reporter().show_startup_dialog(nullptr);
    EXPECT_TRUE(shown.empty());
}

TEST_F(UsageReporter, HandsItsTextToTheDialogOfTheOccasion)
{
    initialise(folder() / "usage");
    ASSERT_TRUE(reporter().is_initialised());
    reporter().show_menu_dialog(nullptr);
    reporter().show_startup_dialog(nullptr);
    EXPECT_EQ(shown, (std::vector<Shown>{{aniUsageDialogsFromMenu, nullptr, "M\xC3\xBCssen wir?"},
                                         {aniUsageDialogsAtStartUp, nullptr, "M\xC3\xBCssen wir?"}}));
}

TEST_F(UsageReporter, RecordsTheProductByItsIdentifierOfTenCharacters)
{
    initialise(folder() / "usage");
    ASSERT_TRUE(reporter().usage_record().choose(true));
    reporter().read_file(L"/a", L"A");
    std::string const text = reporter().usage_record().text();
    auto const end = text.rfind('\t');
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(text.substr(end), "\t7.2\n");
    EXPECT_EQ(end - text.rfind('\t', end - 1) - 1, 10u);
}

TEST_F(UsageReporter, CanBeUsedAsAServiceWhetherItIsInitialisedOrNot)
{
    sduServicePtr<s2sAnalytics> service;
    app().application_information()->services()->find_service(sduServiceKey(s2sANALYTICSOPERATION), service);
    ASSERT_EQ(service.pointer(), &reporter());
    service.pointer()->read_file(L"/a", L"A");
    service.pointer()->write_file(L"/a", L"A");
    initialise(folder() / "usage");
    ASSERT_TRUE(reporter().usage_record().choose(true));
    service.pointer()->read_file(L"/a", L"A");
    EXPECT_EQ(reporter().num_read(L"A"), 1);
    EXPECT_EQ(reporter().num_written(L"A"), 0);
}
