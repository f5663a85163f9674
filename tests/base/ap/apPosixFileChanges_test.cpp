#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "ap/apPosixOperations.h"
#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

class FileChanges : public testing::Test {
protected:
    apPathName path(std::string const & name) const { return apPathName::from_utf8(m_temp / name); }

    kitTempFolder m_temp;
    apPosixFileOperations m_files;
};

TEST_F(FileChanges, ReplaceTheContentAndLeaveNothingElseBehind)
{
    EXPECT_TRUE(m_files.replace_file(path("file"), "one"));
    EXPECT_TRUE(m_files.replace_file(path("file"), std::string("t\0o", 3)));
    EXPECT_EQ(m_temp.read("file"), std::string("t\0o", 3));
    EXPECT_EQ(m_temp.count(), 1);
}

TEST_F(FileChanges, KeepThePermissionsOfTheFileThatIsReplaced)
{
    ASSERT_EQ(chmod(m_temp.write("file", "one").c_str(), 0640), 0);
    EXPECT_TRUE(m_files.replace_file(path("file"), "two"));
    EXPECT_EQ(m_temp.mode("file"), 0640U);
}

TEST_F(FileChanges, ReplaceWhatALinkPointsTo)
{
    std::filesystem::create_directory(m_temp / "below");
    m_temp.write("below/real", "one");
    std::filesystem::create_symlink("below/real", m_temp / "link");
    EXPECT_TRUE(m_files.replace_file(path("link"), "two"));
    EXPECT_TRUE(std::filesystem::is_symlink(m_temp / "link"));
    EXPECT_EQ(m_temp.read("below/real"), "two");
    std::filesystem::create_symlink("below/new", m_temp / "dangling");
    EXPECT_TRUE(m_files.replace_file(path("dangling"), "three"));
    EXPECT_EQ(m_temp.read("below/new"), "three");
}

TEST_F(FileChanges, LeaveTheOldFileWhenTheNewOneCannotBeWritten)
{
    m_temp.write("file", "one");
    EXPECT_TRUE(as_ordinary_user([&] { return true; }));
    give_to_ordinary_user(m_temp.path().string());
    give_to_ordinary_user(m_temp / "file");
    EXPECT_TRUE(as_ordinary_user([&] {
        rlimit const small{1000, 1000};
        std::signal(SIGXFSZ, SIG_IGN);
        return setrlimit(RLIMIT_FSIZE, &small) == 0 &&
               !m_files.replace_file(path("file"), std::string(5000, 'x'));
    }));
    EXPECT_EQ(m_temp.read("file"), "one");
    EXPECT_EQ(m_temp.count(), 1);
}

TEST_F(FileChanges, RefuseToReplaceADirectory)
{
    std::filesystem::create_directory(m_temp / "directory");
    EXPECT_EQ(m_files.replace_file(path("directory"), "x").error(), std::errc::is_a_directory);
    EXPECT_FALSE(m_files.replace_file(path("missing/file"), "x"));
    EXPECT_EQ(m_temp.count(), 1);
}

TEST_F(FileChanges, CopyTheContentIntoAFileOfTheUser)
{
    std::string const content(200000, 'x');
    ASSERT_EQ(chmod(m_temp.write("from", content).c_str(), 0444), 0);
    EXPECT_TRUE(m_files.copy(path("from"), path("to")));
    EXPECT_EQ(m_temp.read("to"), content);
    EXPECT_NE(m_temp.mode("to") & 0600U, 0400U);
    m_temp.write("other", "");
    EXPECT_TRUE(m_files.copy(path("other"), path("to")));
    EXPECT_TRUE(m_temp.read("to").empty());
    EXPECT_EQ(m_temp.count(), 3);
}

TEST_F(FileChanges, RefuseToCopyAFileOntoItself)
{
    m_temp.write("file", "content");
    std::filesystem::create_symlink("file", m_temp / "link");
    EXPECT_FALSE(m_files.copy(path("file"), path("file")));
    EXPECT_FALSE(m_files.copy(path("file"), path("link")));
    EXPECT_EQ(m_temp.read("file"), "content");
}

TEST_F(FileChanges, RefuseToCopyDirectories)
{
    m_temp.write("file", "content");
    std::filesystem::create_directory(m_temp / "directory");
    EXPECT_FALSE(m_files.copy(path("directory"), path("new")));
    EXPECT_FALSE(m_files.copy(path("file"), path("directory")));
    EXPECT_FALSE(m_files.copy(path("missing"), path("new")));
    EXPECT_EQ(m_temp.count(), 2);
}

TEST_F(FileChanges, RenameAndRemoveFiles)
{
    m_temp.write("a", "content");
    EXPECT_TRUE(m_files.rename(path("a"), path("b")));
    EXPECT_EQ(m_temp.read("b"), "content");
    EXPECT_TRUE(m_files.remove(path("b")));
    EXPECT_EQ(m_temp.count(), 0);
    EXPECT_EQ(m_files.remove(path("b")).error(), std::errc::no_such_file_or_directory);
    std::filesystem::create_directory(m_temp / "directory");
    EXPECT_FALSE(m_files.remove(path("directory")));
    EXPECT_TRUE(m_temp.exists("directory"));
}

TEST_F(FileChanges, MakeADirectoryThatAnOrdinaryOwnerCanUse)
{
    give_to_ordinary_user(m_temp.path().string());
    for (mode_t const mask : {0022U, 0077U, 0777U}) {
        auto const name = "made" + std::to_string(mask);
        EXPECT_TRUE(as_ordinary_user([&] {
            umask(mask);
            return m_files.make_directory(path(name)) && m_files.replace_file(path(name + "/file"), "x") &&
                   m_files.is_file(path(name + "/file"));
        }));
        EXPECT_EQ(m_temp.mode(name) & 0700U, 0700U);
        EXPECT_EQ(m_temp.mode(name) & mask & 0077U, 0U);
    }
}

TEST_F(FileChanges, MakeOneDirectoryOrAllThatAreMissing)
{
    EXPECT_FALSE(m_files.make_directory(path("a/b")));
    EXPECT_TRUE(m_files.make_directory(path("a")));
    EXPECT_EQ(m_files.make_directory(path("a")).error(), std::errc::file_exists);
    EXPECT_TRUE(m_files.make_directories(path("a/b/c")));
    EXPECT_TRUE(m_files.make_directories(path("a/b/c")));
    EXPECT_TRUE(m_files.make_directories(path("a/d/")));
    EXPECT_TRUE(m_files.is_directory(path("a/d")));
    m_temp.write("file", "");
    EXPECT_FALSE(m_files.make_directories(path("file/below")));
    EXPECT_FALSE(m_files.make_directories(path("file")));
}

TEST_F(FileChanges, MakeNoHomeThatIsMissing)
{
    EXPECT_EXIT(
        {
            setenv("HOME", (m_temp / "gone/").c_str(), 1);
            bool const refused = m_files.make_directories(path("gone/.config/a")).error() ==
                                 std::errc::no_such_file_or_directory;
            bool const made = bool(m_files.make_directories(path("elsewhere/a")));
            _exit(refused && made ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_FALSE(m_temp.exists("gone"));
}
