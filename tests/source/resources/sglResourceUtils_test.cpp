#include "sglResourceUtils.h"

#include "sglResourceHandler.h"

#include "kit/kitAppTest.h"
#include "vmr/coResourceIterator.h"
#include "vmr/coResourceTableMaker.h"
#include "vmr/vmrResourceRegistry.h"

#include <unistd.h>

namespace {

struct Resources : kitAppTest {
    void SetUp() override
    {
        kitAppTest::SetUp();
        start();
    }
    static bool has_resources(coResourceTable * table)
    {
        coResourceIterator first(table);
        return ++first != 0;
    }
};

} // namespace

TEST_F(Resources, OfAFileThatIsThereAreLoadedFromIt)
{
    utString file = utString(folder().write("my.rsc", "vmrTolTriangulate3d = 0.5\n"));
    utString const given = file;
    vmrTableInstance table(nullptr);
    EXPECT_EQ(set_up_resources(file, table), 1);
    EXPECT_EQ(file, given);
    EXPECT_EQ(table.effective_value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(Resources, OfAnEmptyFileComeFromANewDefaultFileBesideIt)
{
    utString file = utString(folder().write("made/empty.rsc", ""));
    vmrTableInstance table(nullptr);
    EXPECT_EQ(set_up_resources(file, table), 0);
    EXPECT_EQ(file, utString(folder() / "made/Default"));
    EXPECT_TRUE(std::filesystem::exists(file.str()));
    EXPECT_TRUE(has_resources(table.default_table()));
    EXPECT_EQ(table.resource_file(), file);
}

TEST_F(Resources, DefaultFileMakesItsDirectoryWithAllThatIsAbove)
{
    utString file = utString(folder() / "a/b/c/name.rsc");
    EXPECT_EQ(create_default_resources(file), 1);
    EXPECT_EQ(file, utString(folder() / "a/b/c/Default"));
    EXPECT_TRUE(std::filesystem::exists(folder() / "a/b/c/Default"));
    auto const rights = std::filesystem::status(folder() / "a/b").permissions();
    EXPECT_EQ(rights & std::filesystem::perms::owner_all, std::filesystem::perms::owner_all);
}

TEST_F(Resources, DefaultFileOfAPathWithBackslashesHasTwoSlashesWhenTheDirectoryWasMade)
{
    utString file = utString(folder() / "x\\y\\name.rsc");
    EXPECT_EQ(create_default_resources(file), 1);
    EXPECT_EQ(file, utString(folder() / "x/y//Default"));
    EXPECT_TRUE(std::filesystem::exists(folder() / "x/y/Default"));
}

TEST_F(Resources, DefaultFileKeepsTheBackslashWhenTheDirectoryExists)
{
    // Here a backslash is a letter like any other, so that a directory's name may end in one.
    std::filesystem::create_directories(folder() / "x\\");
    utString file = utString(folder() / "x\\name.rsc");
    EXPECT_EQ(create_default_resources(file), 1);
    EXPECT_EQ(file, utString(folder() / "x\\/Default"));
    EXPECT_TRUE(std::filesystem::exists(folder() / "x\\/Default"));
}

TEST_F(Resources, DefaultFileTellsWhenItsDirectoryCannotBeMade)
{
    folder().write("plain", "a file, not a directory");
    utString file = utString(folder() / "plain/below/deep/name.rsc");
    EXPECT_EQ(create_default_resources(file), 0);
}

TEST_F(Resources, CopyKeepsOverridesAndDefaultsThatChangedInMemory)
{
    auto const file = folder().write("my.rsc", "vmrTolTriangulate3d = 0.5\nvmrOptProcessSurfaces = true\n");
    vmrTableInstance from(file.c_str());
    from.add_resource("vmrOptProcessSurfaces", "false");
    coResourceTableMaker::merge_entry("vmrTolTriangulate3d", "0.25", *from.default_table());
    vmrTableInstance to(nullptr);
    EXPECT_EQ(sgl_copy_resource_table(from, to), 1);
    EXPECT_EQ(to.table()->value("vmrOptProcessSurfaces"), utString("false"));
    EXPECT_EQ(to.default_table()->value("vmrTolTriangulate3d"), utString("0.25"));
    EXPECT_EQ(to.resource_file(), utString(file));
}

TEST_F(Resources, CopyOfAnInvalidTableDoesNothing)
{
    vmrTableInstance const from(nullptr);
    vmrTableInstance to(folder().write("my.rsc", "vmrTolTriangulate3d = 0.5\n").c_str());
    EXPECT_EQ(sgl_copy_resource_table(from, to), 0);
    EXPECT_EQ(to.effective_value("vmrTolTriangulate3d"), utString("0.5"));
}

TEST_F(Resources, NumbersAreJudgedAsTheUserWritesThem)
{
    sglValidator validator;
    EXPECT_TRUE(validator.validate_int("any", "42"));
    EXPECT_FALSE(validator.validate_int("any", "42x"));
    EXPECT_TRUE(validator.validate_double("any", "0.5"));
    EXPECT_FALSE(validator.validate_double("any", "half"));
}

TEST_F(Resources, HandlerPutsAValueIntoTheOverridesAndRefusesIllegalOnes)
{
    vmrTableInstance table(folder().write("my.rsc", "").c_str());
    EXPECT_NE(sglResourceHandler("vmrTolTriangulate3d").insert("0.125", table), 0);
    EXPECT_EQ(table.effective_value("vmrTolTriangulate3d"), utString("0.125"));
    EXPECT_EQ(sglResourceHandler("vmrTolTriangulate3d").insert("coarse", table), 0);
    EXPECT_EQ(sglResourceHandler("noSuchResource").validate("x"), 0);
}

TEST_F(Resources, AreCopiedFromFolderToFolderByExtension)
{
    folder().write("from/a.rsc", "a");
    folder().write("from/b.txt", "b");
    sgl_fill_dir_from_dir(utString(folder() / "from"), utString(folder() / "to"), "rsc");
    EXPECT_EQ(kit_read_file(folder() / "to/a.rsc"), "a");
    EXPECT_FALSE(std::filesystem::exists(folder() / "to/b.txt"));
}
