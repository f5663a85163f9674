#include <filesystem>
#include <gtest/gtest.h>

#include "ap/apPosixOperations.h"
#include "ap/apStringCompareInsensitive.h"
#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

namespace {

apPathName path(std::string const & text)
{
    return apPathName::from_utf8(text);
}

} // namespace

class FileLooks : public testing::Test {
protected:
    kitTempFolder m_temp;
    apPosixFileOperations m_files;
};

TEST_F(FileLooks, TellFilesFromDirectories)
{
    auto const file = path(m_temp.write("file", "12345"));
    auto const directory = path(m_temp.path().string());
    auto const missing = path(m_temp / "missing");
    EXPECT_TRUE(m_files.exists(file) && m_files.exists(directory));
    EXPECT_FALSE(m_files.exists(missing) || m_files.is_file(missing) || m_files.is_directory(missing));
    EXPECT_TRUE(m_files.is_file(file) && !m_files.is_directory(file));
    EXPECT_TRUE(m_files.is_directory(directory) && !m_files.is_file(directory));
}

TEST_F(FileLooks, GiveTheSizeOrTheReason)
{
    std::uint64_t bytes = 0;
    EXPECT_TRUE(m_files.size(path(m_temp.write("file", "12345")), bytes));
    EXPECT_EQ(bytes, 5U);
    auto const result = m_files.size(path(m_temp / "missing"), bytes);
    EXPECT_FALSE(result);
    EXPECT_EQ(result.error(), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(result.message().empty());
    EXPECT_EQ(bytes, 5U);
}

TEST_F(FileLooks, ListNamesInOrderWhateverTheirBytes)
{
    for (char const * name : {"b", "a", "\xFF.txt", ".hidden"})
        m_temp.write(name, "");
    std::vector<apFileName> names;
    ASSERT_TRUE(m_files.list_directory(path(m_temp.path().string()), names));
    ASSERT_EQ(names.size(), 4U);
    EXPECT_EQ(names[0].utf8(), ".hidden");
    EXPECT_EQ(names[1].utf8(), "a");
    EXPECT_EQ(names[3].utf8(), "\xFF.txt");
    EXPECT_FALSE(m_files.list_directory(path(m_temp / "missing"), names));
    EXPECT_TRUE(names.empty());
}

TEST_F(FileLooks, FindFilesByExtensionInEitherCase)
{
    for (char const * name : {"b.rsc", "a.RSC", "c.rsc2", "rsc", ".rsc"})
        m_temp.write(name, "");
    std::filesystem::create_directory(m_temp / "d.rsc");
    apStringCompareInsensitive const compare(nullptr);
    std::vector<apPathName> paths;
    ASSERT_TRUE(m_files.list_by_extension(path(m_temp.path().string()), apString(L"Rsc"), compare, paths));
    ASSERT_EQ(paths.size(), 2U);
    EXPECT_EQ(paths[0].utf8(), m_temp / "a.RSC");
    EXPECT_EQ(paths[1].utf8(), m_temp / "b.rsc");
    EXPECT_FALSE(m_files.list_by_extension(path("/nowhere"), apString(L"rsc"), compare, paths));
}

TEST_F(FileLooks, ReadAFileWhole)
{
    std::string content("a\0b\r\n", 5);
    content.append(200000, 'x');
    std::string read = "old";
    ASSERT_TRUE(m_files.read_file(path(m_temp.write("file", content)), read));
    EXPECT_EQ(read, content);
    ASSERT_TRUE(m_files.read_file(path(m_temp.write("empty", "")), read));
    EXPECT_TRUE(read.empty());
}

TEST_F(FileLooks, RefuseToReadWhatIsTooBigOrNoFile)
{
    std::string read = "old";
    auto const file = path(m_temp.write("file", "12345"));
    EXPECT_TRUE(m_files.read_file(file, read, 5));
    EXPECT_EQ(m_files.read_file(file, read, 4).error(), std::errc::file_too_large);
    EXPECT_TRUE(read.empty());
    EXPECT_EQ(m_files.read_file(path(m_temp.path().string()), read).error(), std::errc::is_a_directory);
    EXPECT_FALSE(m_files.read_file(path(m_temp / "missing"), read));
    ASSERT_EQ(mkfifo((m_temp / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(m_files.read_file(path(m_temp / "pipe"), read));
}

TEST_F(FileLooks, KnowWhatAnOrdinaryUserMayWrite)
{
    auto const mine = m_temp / "mine";
    auto const read_only = m_temp / "read-only";
    std::filesystem::create_directory(mine);
    std::filesystem::create_directory(read_only);
    auto const locked = m_temp.write("mine/locked", "");
    give_to_ordinary_user(m_temp.path().string());
    give_to_ordinary_user(mine);
    give_to_ordinary_user(locked);
    ASSERT_EQ(chmod(locked.c_str(), 0444), 0);
    ASSERT_EQ(chmod(read_only.c_str(), 0555), 0);
    EXPECT_TRUE(as_ordinary_user([&] {
        return m_files.is_writable_directory(path(mine)) && m_files.can_replace_file(path(mine + "/new")) &&
               !m_files.can_replace_file(path(locked)) && !m_files.is_writable_directory(path(read_only)) &&
               !m_files.can_replace_file(path(read_only + "/new"));
    }));
    EXPECT_FALSE(m_files.is_writable_directory(path(locked)));
    EXPECT_FALSE(m_files.can_replace_file(path(mine)));
}

TEST_F(FileLooks, SurvivePathsOfAnyLength)
{
    auto const endless = path("/" + std::string(4000, 'x'));
    auto const deep = [] {
        std::string text;
        for (int i = 0; i < 1000; ++i)
            text += "/abc";
        return path(text);
    }();
    std::string content;
    std::uint64_t bytes = 0;
    std::vector<apFileName> names;
    for (auto const & one : {endless, deep, apPathName()}) {
        EXPECT_FALSE(m_files.exists(one) || m_files.is_file(one) || m_files.is_writable_directory(one));
        EXPECT_FALSE(m_files.size(one, bytes) || m_files.list_directory(one, names) ||
                     m_files.read_file(one, content));
        EXPECT_FALSE(m_files.remove(one) || m_files.copy(one, one) || m_files.rename(one, one));
    }
    EXPECT_FALSE(m_files.replace_file(endless, "x"));
    EXPECT_FALSE(m_files.make_directory(endless) || m_files.make_directories(endless));
}

TEST_F(FileLooks, KnowWhereTemporaryFilesGo)
{
    EXPECT_TRUE(m_files.is_directory(m_files.temp_directory()));
}
