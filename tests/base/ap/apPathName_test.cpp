#include "ap/apPathName.h"

#include <gtest/gtest.h>

TEST(PathName, AdjoinsAFileNameWithOneSeparator)
{
    EXPECT_EQ(apPathName(L"/a").adjoin(apFileName(L"startup.hrk")).utf8(), "/a/startup.hrk");
    EXPECT_EQ(apPathName(L"/a/").adjoin(apFileName(L"b")).utf8(), "/a/b");
    EXPECT_EQ(apPathName(L"/").adjoin(apFileName(L"b")).utf8(), "/b");
    EXPECT_EQ(apPathName().adjoin(apFileName(L"b")).utf8(), "b");
    EXPECT_EQ(apPathName(apPathName(L"a"), apFileName(L"b")).utf8(), "a/b");
}

TEST(PathName, AdjoinsARelativePathButNotAnAbsoluteOne)
{
    EXPECT_EQ(apPathName(L"/a").adjoin(apPathName(L"b/c")).utf8(), "/a/b/c");
    EXPECT_EQ(apPathName(L"/a").adjoin(apPathName(L"/b")).utf8(), "/b");
}

TEST(PathName, KnowsItsDirectoryAndItsFileName)
{
    apPathName const path(L"/a/b/part.step");
    EXPECT_EQ(path.directory().utf8(), "/a/b");
    EXPECT_EQ(path.file_name().utf8(), "part.step");
    EXPECT_EQ(path.extension().utf8(), "step");
    EXPECT_TRUE(apPathName(L"part.step").directory().empty());
    EXPECT_EQ(apPathName(L"/part").directory().utf8(), "/");
    EXPECT_EQ(apPathName(L"/").directory().utf8(), "/");
}

TEST(PathName, ChangesTheExtensionOfTheLastComponentOnly)
{
    apString const stl(L"stl");
    EXPECT_EQ(apPathName(L"/a.b/part.step").change_extension(stl).utf8(), "/a.b/part.stl");
    EXPECT_EQ(apPathName(L"/a.b/part").change_extension(stl).utf8(), "/a.b/part.stl");
    EXPECT_EQ(apPathName(L"/a.b/part.old.step").change_extension(stl).utf8(), "/a.b/part.old.stl");
    EXPECT_EQ(apPathName(L"part.step").change_extension(apString()).utf8(), "part");
    EXPECT_EQ(apPathName(L"part.").change_extension(stl).utf8(), "part.stl");
    EXPECT_EQ(apPathName(L".hidden").change_extension(stl).utf8(), ".hidden.stl");
    EXPECT_EQ(apPathName(L"..").change_extension(stl).utf8(), "...stl");
}

TEST(PathName, IsInvalidWhenEmpty)
{
    EXPECT_TRUE(apPathName().invalid());
    EXPECT_FALSE(apPathName(L"a").invalid());
    EXPECT_FALSE(apPathName(L"a").absolute());
    EXPECT_TRUE(apPathName(L"/a").absolute());
}

TEST(PathName, KeepsBytesThatAreNotText)
{
    auto const path = apPathName::from_utf8("/\xFF/\xFE.step");
    EXPECT_EQ(path.change_extension(apString(L"stl")).utf8(), "/\xFF/\xFE.stl");
    EXPECT_EQ(path.directory().utf8(), "/\xFF");
}

TEST(PathName, TakesAVeryLongPath)
{
    std::string const text = "/" + std::string(4000, 'x') + ".step";
    auto const path = apPathName::from_utf8(text);
    EXPECT_EQ(path.change_extension(apString(L"stl")).utf8().size(), text.size() - 1);
    EXPECT_EQ(path.directory().utf8(), "/");
}

TEST(FileName, KnowsAndChangesItsExtension)
{
    EXPECT_EQ(apFileName(L"step.rsc").extension().utf8(), "rsc");
    EXPECT_TRUE(apFileName(L"Default").extension().empty());
    EXPECT_EQ(apFileName(L"a.b").change_extension(apString(L"c")), apFileName(L"a.c"));
    EXPECT_TRUE(apFileName().empty());
}
