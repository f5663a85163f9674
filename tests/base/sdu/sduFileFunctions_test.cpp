#include "sdu/sduFileFunctions.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

class SduFiles : public testing::Test {
protected:
    utString path(std::string const & name) const { return utString(m_temp / name); }

    kitTempFolder m_temp;
};

TEST_F(SduFiles, ChecksGiveSixForAFileAndSevenForADirectory)
{
    m_temp.write("file", "");
    EXPECT_EQ(static_cast<int>(sdu_check_file_exists(path("file"))), 6);
    EXPECT_EQ(static_cast<int>(sdu_check_directory_exists(utString(m_temp.path().string()))), 7);
    EXPECT_NE(sdu_check_file_exists(utString(m_temp.path().string())), 6);
    EXPECT_NE(sdu_check_directory_exists(path("file")), 7);
    EXPECT_EQ(sdu_check_file_exists(path("missing")), sduFileNotFound);
    EXPECT_EQ(sdu_check_directory_exists(path("missing")), sduFileNotFound);
    EXPECT_EQ(sdu_check_file_exists(path("file/below")), sduFileNotFound);
}

TEST_F(SduFiles, ChecksFollowLinks)
{
    m_temp.write("file", "");
    std::filesystem::create_symlink("file", m_temp / "link");
    std::filesystem::create_symlink("nowhere", m_temp / "dangling");
    EXPECT_EQ(sdu_check_file_exists(path("link")), sduFileExists);
    EXPECT_EQ(sdu_check_file_exists(path("dangling")), sduFileNotFound);
}

TEST_F(SduFiles, ChecksTakeNamesOfAnyBytes)
{
    m_temp.write("\xC3\xA4 \xFF", "");
    EXPECT_EQ(sdu_check_file_exists(path("\xC3\xA4 \xFF")), sduFileExists);
}

TEST_F(SduFiles, MakesADirectoryOrFindsIt)
{
    EXPECT_EQ(static_cast<int>(sdu_make_directory(path("made"))), 1);
    EXPECT_EQ(static_cast<int>(sdu_make_directory(path("made"))), 7);
    m_temp.write("file", "");
    EXPECT_EQ(sdu_make_directory(path("file")), sduFileExists);
    EXPECT_EQ(sdu_make_directory(path("missing/below")), sduFileNotFound);
}

TEST_F(SduFiles, MakesADirectoryThatAnOrdinaryUserCanWriteTo)
{
    give_to_ordinary_user(m_temp.path().string());
    EXPECT_TRUE(as_ordinary_user([&] {
        return sdu_make_directory(path("made")) == sduFileDone &&
               sdu_make_directory(path("made/below")) == sduFileDone &&
               std::filesystem::is_empty(m_temp / "made/below");
    }));
}

TEST_F(SduFiles, RemovesAFileAndNothingElse)
{
    m_temp.write("file", "");
    EXPECT_EQ(sdu_remove_file(path("file")), sduFileDone);
    EXPECT_FALSE(m_temp.exists("file"));
    EXPECT_EQ(sdu_remove_file(path("file")), sduFileNotFound);
    EXPECT_EQ(sdu_remove_file(utString(m_temp.path().string())), sduFileDirectoryExists);
    EXPECT_EQ(sdu_remove_file(utString::make_invalid()), sduFileNotFound);
}

TEST_F(SduFiles, RemovesALinkAndLeavesWhatItPointsTo)
{
    m_temp.write("file", "x");
    std::filesystem::create_symlink("file", m_temp / "link");
    EXPECT_EQ(sdu_remove_file(path("link")), sduFileDone);
    EXPECT_EQ(m_temp.read("file"), "x");
}

TEST_F(SduFiles, TellsWhenTheSystemDoesNotAllowIt)
{
    std::filesystem::create_directory(m_temp / "locked");
    m_temp.write("locked/file", "x");
    ASSERT_EQ(chmod((m_temp / "locked").c_str(), 0555), 0);
    ASSERT_EQ(chmod(m_temp.path().string().c_str(), 0755), 0);
    EXPECT_TRUE(as_ordinary_user([&] {
        return sdu_remove_file(path("locked/file")) == sduFileAccessDenied &&
               sdu_make_directory(path("locked/new")) == sduFileAccessDenied &&
               sdu_copy_file(path("locked/file"), path("locked/copy")) == sduFileAccessDenied;
    }));
    EXPECT_EQ(m_temp.read("locked/file"), "x");
}

TEST_F(SduFiles, CopiesTheContent)
{
    m_temp.write("from", "content");
    EXPECT_EQ(sdu_copy_file(path("from"), path("to")), sduFileDone);
    EXPECT_EQ(m_temp.read("to"), "content");
    EXPECT_EQ(m_temp.read("from"), "content");
    EXPECT_EQ(sdu_copy_file(path("missing"), path("to")), sduFileNotFound);
    EXPECT_EQ(m_temp.read("to"), "content");
    EXPECT_EQ(sdu_copy_file(path("from"), path("from")), sduFileExists);
    EXPECT_EQ(m_temp.read("from"), "content");
    EXPECT_EQ(sdu_copy_file(path("from"), utString(m_temp.path().string())), sduFileDirectoryExists);
}

TEST_F(SduFiles, SurvivePathsOfAnyLength)
{
    auto const endless = path(std::string(4000, 'x'));
    EXPECT_EQ(sdu_check_file_exists(endless), sduFileIOError);
    EXPECT_EQ(sdu_check_directory_exists(endless), sduFileIOError);
    EXPECT_EQ(sdu_make_directory(endless), sduFileIOError);
    EXPECT_EQ(sdu_remove_file(endless), sduFileIOError);
    EXPECT_EQ(sdu_copy_file(endless, endless), sduFileIOError);
    m_temp.write("from", "content");
    EXPECT_EQ(sdu_copy_file(path("from"), endless), sduFileIOError);
}

TEST(TempFileName, IsNewEachTimeAndNamesNoFile)
{
    auto const first = sdu_make_temp_file_name();
    EXPECT_NE(first, sdu_make_temp_file_name());
    EXPECT_FALSE(std::filesystem::exists(first.str()));
    EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::path(first.str()).parent_path()));
    EXPECT_TRUE(std::filesystem::path(first.str()).extension().empty());
}
