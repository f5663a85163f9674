#include "sdu/sduFileProtection.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

#include "kit/kitTempFolder.h"
#include "sdu/sduFileFunctions.h"

class FileProtection : public testing::Test {
protected:
    utString path(std::string const & name) const { return utString(m_temp / name); }

    kitTempFolder m_temp;
    std::string m_file = m_temp.write("input", "geometry");
};

TEST_F(FileProtection, KeepsTheFileForAsLongAsItLives)
{
    {
        sduFileProtection const protection(path("input"));
        EXPECT_TRUE(protection.active());
        EXPECT_EQ(sdu_remove_file(path("input")), sduFileProtected);
        EXPECT_EQ(m_temp.read("input"), "geometry");
    }
    EXPECT_EQ(sdu_remove_file(path("input")), sduFileDone);
}

TEST_F(FileProtection, KeepsTheFileUnderEveryNameThatItHas)
{
    std::filesystem::create_directory(m_temp / "below");
    std::filesystem::create_symlink(m_file, m_temp / "soft");
    std::filesystem::create_hard_link(m_file, m_temp / "hard");
    sduFileProtection const protection(path("soft"));
    for (char const * name : {"input", "soft", "hard", "below/../input", ".//input"})
        EXPECT_EQ(sdu_remove_file(path(name)), sduFileProtected) << name;
    EXPECT_TRUE(m_temp.exists("soft") && m_temp.exists("hard"));
    EXPECT_EQ(m_temp.read("input"), "geometry");
}

TEST_F(FileProtection, LeavesOtherFilesAlone)
{
    m_temp.write("output", "");
    sduFileProtection const protection(path("input"));
    EXPECT_EQ(sdu_remove_file(path("output")), sduFileDone);
}

TEST_F(FileProtection, CountsSeveralProtectionsOfOneFile)
{
    auto first = std::make_unique<sduFileProtection>(path("input"));
    sduFileProtection second(path("input"));
    first.reset();
    EXPECT_EQ(sdu_remove_file(path("input")), sduFileProtected);
    second.release();
    EXPECT_FALSE(second.active());
    second.release();
    EXPECT_EQ(sdu_remove_file(path("input")), sduFileDone);
}

TEST_F(FileProtection, MovesWithItsObject)
{
    sduFileProtection first(path("input"));
    sduFileProtection second(std::move(first));
    EXPECT_FALSE(first.active()); // NOLINT(bugprone-use-after-move): this is what the test is about
    EXPECT_EQ(sdu_remove_file(path("input")), sduFileProtected);
    m_temp.write("other", "");
    second = sduFileProtection(path("other"));
    EXPECT_EQ(sdu_remove_file(path("other")), sduFileProtected);
    EXPECT_EQ(sdu_remove_file(path("input")), sduFileDone);
    std::vector<sduFileProtection> many;
    for (int i = 0; i < 20; ++i)
        many.emplace_back(path("other"));
    second.release();
    EXPECT_EQ(sdu_remove_file(path("other")), sduFileProtected);
    many.clear();
    EXPECT_EQ(sdu_remove_file(path("other")), sduFileDone);
}

TEST_F(FileProtection, ProtectsNothingWhereNoFileIs)
{
    sduFileProtection const protection(path("missing"));
    EXPECT_FALSE(protection.active());
    m_temp.write("missing", "");
    EXPECT_EQ(sdu_remove_file(path("missing")), sduFileDone);
    EXPECT_FALSE(sduFileProtection().active());
    EXPECT_FALSE(sduFileProtection(utString(std::string(4000, 'x'))).active());
}

TEST_F(FileProtection, KeepsTheFileFromBeingCopiedOver)
{
    m_temp.write("other", "text");
    sduFileProtection const protection(path("input"));
    EXPECT_EQ(sdu_copy_file(path("other"), path("input")), sduFileProtected);
    EXPECT_EQ(m_temp.read("input"), "geometry");
    EXPECT_EQ(sdu_copy_file(path("input"), path("copy")), sduFileDone);
}

TEST_F(FileProtection, FollowsTheFileAndNotItsName)
{
    sduFileProtection const protection(path("input"));
    std::filesystem::rename(m_file, m_temp / "renamed");
    m_temp.write("input", "another file");
    EXPECT_EQ(sdu_remove_file(path("input")), sduFileDone);
    EXPECT_EQ(sdu_remove_file(path("renamed")), sduFileProtected);
}

TEST_F(FileProtection, MayBeUsedFromManyThreads)
{
    sduFileProtection const whole(path("input"));
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int n = 0; n < 500; ++n) {
                sduFileProtection const protection(path("input"));
                EXPECT_EQ(sdu_remove_file(path("input")), sduFileProtected);
            }
        });
    for (auto & thread : threads)
        thread.join();
    EXPECT_EQ(m_temp.read("input"), "geometry");
}
