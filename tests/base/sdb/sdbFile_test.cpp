#include "sdb/sdbSdbFileFactory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

#include "ap/apPosixOperations.h"
#include "ap/apStringUTF8Encoding.h"

namespace fs = std::filesystem;

namespace {

class File : public testing::Test {
protected:
    sdbFile file(std::string const & name) const { return factory.make_file(utString(temp / name)); }

    kitTempFolder temp;
    apStringUTF8Encoding encoding;
    apPosixFileOperations operations;
    sdbSdbFileFactory factory{&encoding, &operations};
};

} // namespace

TEST_F(File, GivesTheElementsOfItsPath)
{
    auto const part = factory.make_file("/models/parts/bracket.v2.stp");
    EXPECT_EQ(part.path_element(1), utString("/models/parts/"));
    EXPECT_EQ(factory.make_file("/bracket.stp").path_element(1), utString("/"));
    EXPECT_EQ(part.path_element(2), utString("bracket.v2"));
    EXPECT_EQ(part.path_element(3), utString("stp"));
    EXPECT_TRUE(part.path_element(0).empty());
    EXPECT_TRUE(part.path_element(4).empty());
}

TEST_F(File, GivesEmptyElementsForWhatThePathLacks)
{
    auto const bare = factory.make_file("Makefile");
    EXPECT_TRUE(bare.path_element(1).empty());
    EXPECT_EQ(bare.path_element(2), utString("Makefile"));
    EXPECT_TRUE(bare.path_element(3).empty());
}

TEST_F(File, SaysWhatLiesAtItsPath)
{
    fs::create_directory(temp / "directory");
    ASSERT_EQ(::mkfifo((temp / "pipe").c_str(), 0600), 0);
    temp.write("part.rsc", "");
    EXPECT_EQ(file("absent").file_type(), 0);
    EXPECT_EQ(file("part.rsc").file_type(), sdbFileRegular);
    EXPECT_EQ(file("directory").file_type(), sdbFileDirectory);
    EXPECT_EQ(file("pipe").file_type(), sdbFileOther);
}

TEST_F(File, MakesAnEmptyFileWhereThereIsNone)
{
    EXPECT_NE(file("new.rsc").create_file(2), 0);
    EXPECT_TRUE(temp.exists("new.rsc"));
    EXPECT_EQ(temp.read("new.rsc"), "");
}

TEST_F(File, DoesNotEmptyAFileThatIsThere)
{
    temp.write("old.rsc", "value");
    EXPECT_EQ(file("old.rsc").create_file(2), 0);
    EXPECT_EQ(temp.read("old.rsc"), "value");
    EXPECT_EQ(file("other.rsc").create_file(1), 0);
    EXPECT_FALSE(temp.exists("other.rsc"));
}

TEST_F(File, IsReadAndWrittenWhole)
{
    std::string const bytes("a\0b\nc", 5);
    EXPECT_NE(file("x").write(bytes), 0);
    std::string content;
    EXPECT_NE(file("x").read(content), 0);
    EXPECT_EQ(content, bytes);
    EXPECT_EQ(temp.count(), 1);
    EXPECT_EQ(file("absent").read(content), 0);
    EXPECT_EQ(file("no/such/directory").write("x"), 0);
}

TEST_F(File, IsTheSameFileBehindALink)
{
    temp.write("step.rsc", "");
    fs::create_directory(temp / "d");
    fs::create_symlink(temp / "step.rsc", temp / "link.rsc");
    fs::create_hard_link(temp / "step.rsc", temp / "hard.rsc");
    temp.write("other.rsc", "");
    EXPECT_TRUE(file("step.rsc") == file("link.rsc"));
    EXPECT_TRUE(file("step.rsc") == file("hard.rsc"));
    EXPECT_TRUE(file("step.rsc") == file("d/../step.rsc"));
    EXPECT_FALSE(file("step.rsc") == file("other.rsc"));
}

TEST_F(File, IsTheSameFileThatDoesNotExistYet)
{
    fs::create_directory(temp / "d");
    fs::create_directory_symlink(temp / "d", temp / "e");
    EXPECT_TRUE(file("d/new.rsc") == file("e/./new.rsc"));
    EXPECT_FALSE(file("d/new.rsc") == file("d/New.rsc"));
    EXPECT_FALSE(file("d/new.rsc") == factory.make_file(""));
}

TEST_F(File, KeepsAPathUsableWhenItsSeparatorsAreMadeThoseOfThePlatform)
{
    temp.write("step.rsc", "");
    EXPECT_EQ(sdbFile::backslashify(utString(temp / "step.rsc")), utString(temp / "step.rsc"));
    EXPECT_TRUE(sdbFile::backslashify(utString::make_invalid()).invalid());
}

TEST_F(File, TakesNamesThatAreNotText)
{
    EXPECT_NE(file("caf\xe9").write("x"), 0);
    EXPECT_TRUE(temp.exists("caf\xe9"));
}
