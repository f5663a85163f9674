#include "ut/utTextArguments.h"

#include <gtest/gtest.h>

TEST(TextArguments, KeepTheTypeOfEachValue)
{
    auto const arguments = ut_text_arguments(7, 2.5, "name", utString("text"), std::string("more"), true);
    ASSERT_EQ(arguments.size(), 6U);
    EXPECT_EQ(std::get<std::int64_t>(arguments[0]), 7);
    EXPECT_EQ(std::get<double>(arguments[1]), 2.5);
    EXPECT_EQ(std::get<std::string>(arguments[2]), "name");
    EXPECT_EQ(std::get<std::string>(arguments[3]), "text");
    EXPECT_EQ(std::get<std::string>(arguments[4]), "more");
    EXPECT_EQ(std::get<std::int64_t>(arguments[5]), 1);
}

TEST(TextArguments, ReadAnInvalidStringAsEmptyText)
{
    auto const arguments = ut_text_arguments(utString::make_invalid());
    EXPECT_EQ(std::get<std::string>(arguments[0]), "");
}
