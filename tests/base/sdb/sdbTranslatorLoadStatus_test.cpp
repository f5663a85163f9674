#include "sdb/sdbTranslatorLoadStatus.h"

#include <gtest/gtest.h>

TEST(TranslatorLoadStatus, StartsWithoutFailure)
{
    sdbTranslatorLoadStatus const status(static_cast<sdbTranslatorLoadStatusType>(1));
    EXPECT_TRUE(status.ok());
    EXPECT_FALSE(status.files_failed_to_load());
    EXPECT_TRUE(status.translator_files_failed_to_load().undefined());
}

TEST(TranslatorLoadStatus, GivesTheFilesThatFailedInTheirOrder)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    status.add_file_failure(L"/b.so", "/b.so: broken");
    status.add_file_failure(L"/a.so", "/a.so: broken");
    EXPECT_FALSE(status.ok());
    EXPECT_TRUE(status.files_failed_to_load());
    auto files = status.translator_files_failed_to_load();
    ASSERT_FALSE(files.undefined());
    ASSERT_TRUE(++files);
    EXPECT_EQ(files().utf8(), "/b.so");
    ASSERT_TRUE(++files);
    EXPECT_EQ(files().utf8(), "/a.so");
    EXPECT_FALSE(++files);
    EXPECT_EQ(status.failures()[1].reason, utString("/a.so: broken"));
}

TEST(TranslatorLoadStatus, TellsOtherFailuresFromFailedFiles)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    status.add_other_failure("the disk is full");
    EXPECT_FALSE(status.ok());
    EXPECT_FALSE(status.files_failed_to_load());
    EXPECT_TRUE(status.translator_files_failed_to_load().undefined());
    EXPECT_EQ(status.other_failure(), utString("the disk is full"));
    EXPECT_FALSE(sdbTranslatorLoadStatus(sdbTranslatorLoadFailed).ok());
}

TEST(TranslatorLoadStatus, IsAValueWhoseCopyGoesItsOwnWay)
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    auto copy = status;
    copy.add_file_failure(L"/a.so", "broken");
    EXPECT_TRUE(status.ok());
    status = copy;
    EXPECT_FALSE(status.ok());
}
