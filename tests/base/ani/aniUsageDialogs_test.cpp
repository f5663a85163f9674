#include "ani/aniUsageDialogs.h"

#include <gtest/gtest.h>

namespace {

class UsageDialogs : public testing::Test {
protected:
    ~UsageDialogs() override { aniUsageDialogs::set_presenter(nullptr); }
};

} // namespace

TEST_F(UsageDialogs, HaveTheNumbersOfTheirOccasions)
{
    EXPECT_EQ(aniUsageDialogsFromMenu, 0);
    EXPECT_EQ(aniUsageDialogsAtStartUp, 1);
}

TEST_F(UsageDialogs, ShowNothingWithoutAPresenter)
{
    EXPECT_EQ(aniUsageDialogs::display_dialog(aniUsageDialogsFromMenu, nullptr, L"text"), 0);
}

TEST_F(UsageDialogs, HandEverythingToThePresenter)
{
    int window = 0;
    int calls = 0;
    aniUsageDialogs::set_presenter([&](aniUsageDialogsShow show, void * parent, apString const & text) {
        ++calls;
        EXPECT_EQ(show, aniUsageDialogsAtStartUp);
        EXPECT_EQ(parent, &window);
        EXPECT_EQ(text, apString(L"May we?"));
        return 1;
    });
    EXPECT_EQ(aniUsageDialogs::display_dialog(aniUsageDialogsAtStartUp, &window, L"May we?"), 1);
    EXPECT_EQ(calls, 1);
    aniUsageDialogs::set_presenter(nullptr);
    EXPECT_EQ(aniUsageDialogs::display_dialog(aniUsageDialogsAtStartUp, &window, L"May we?"), 0);
    EXPECT_EQ(calls, 1);
}
