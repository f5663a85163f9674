#include <gmock/gmock.h>

#include "engineKit.h"
#include "s2s/s2sPutInPlace.h"

namespace fs = std::filesystem;

namespace {

using ::testing::ElementsAre;

class PutInPlace : public ::testing::Test {
protected:
    PutInPlace()
    {
        fs::create_directory(folder);
        EXPECT_FALSE(staging.create(output));
        write_text(staging.path() / "part.obj", "new mesh");
        write_text(staging.path() / "part.mtl", "new colours");
    }

    s2sFailure put(std::vector<fs::path> const & inputs = {}) const
    {
        return s2s_put_in_place(staging, output, inputs);
    }

    kitTempFolder temp;
    fs::path folder = fs::path(temp / "out");
    fs::path output = folder / "part.obj";
    s2sStagingFolder staging;
};

TEST_F(PutInPlace, MovesAllFiles)
{
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(folder / "part.obj"), "new mesh");
    EXPECT_EQ(read_text(folder / "part.mtl"), "new colours");
    EXPECT_THAT(names_in(staging.path()), ElementsAre(apMarkedFolder::mark_name));
}

TEST_F(PutInPlace, ReplacesOldFiles)
{
    write_text(folder / "part.obj", "old mesh");
    write_text(folder / "part.mtl", "old colours");
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(folder / "part.obj"), "new mesh");
    EXPECT_EQ(read_text(folder / "part.mtl"), "new colours");
    EXPECT_THAT(names_in(staging.path()), ElementsAre(apMarkedFolder::mark_name, "part.mtl", "part.obj"))
        << "the old files";
}

TEST_F(PutInPlace, PutsBackWhatItHasReplacedWhenALaterStepFails)
{
    write_text(folder / "part.mtl", "old colours");
    fs::create_directories(folder / "part.obj/in the way");
    auto const failure = put();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->arguments[0], ut_text_argument(output.native()));
    EXPECT_EQ(read_text(folder / "part.mtl"), "old colours");
    EXPECT_TRUE(fs::is_directory(folder / "part.obj/in the way"));
    EXPECT_TRUE(apMarkedFolder::open(staging.path()).is_open());
}

TEST_F(PutInPlace, TakesAwayWhatItHasAddedWhenALaterStepFails)
{
    fs::create_directories(folder / "part.obj/in the way");
    EXPECT_TRUE(put());
    EXPECT_THAT(names_in(folder), ElementsAre(staging.path().filename(), "part.obj"));
}

TEST_F(PutInPlace, FailsWithoutTheChiefFile)
{
    fs::remove(staging.path() / "part.obj");
    EXPECT_TRUE(put());
    EXPECT_FALSE(fs::exists(folder / "part.mtl"));
}

TEST_F(PutInPlace, LeavesInputsAlone)
{
    write_text(folder / "part.mtl", "input");
    EXPECT_TRUE(put({folder / "part.mtl"}));
    EXPECT_EQ(read_text(folder / "part.mtl"), "input");
    EXPECT_FALSE(fs::exists(folder / "part.obj"));
}

TEST_F(PutInPlace, LeavesInputsAloneUnderWhateverName)
{
    write_text(folder / "input.cad", "input");
    fs::create_hard_link(folder / "input.cad", folder / "part.mtl");
    auto const failure = put({folder / "input.cad"});
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->arguments[1], ut_text_argument((folder / "input.cad").native()));
    EXPECT_EQ(read_text(folder / "part.mtl"), "input");
}

TEST_F(PutInPlace, TakesOverThePermissionsOfAnOldFileButNotItsRightToRunAsItsOwner)
{
    write_text(output, "old mesh");
    fs::permissions(output, static_cast<fs::perms>(06755));
    EXPECT_FALSE(put());
    EXPECT_EQ(fs::status(output).permissions(), static_cast<fs::perms>(0755));
}

TEST_F(PutInPlace, MovesOrdinaryFilesOnly)
{
    fs::remove(staging.path() / "part.mtl");
    write_text(temp / "private", "mine");
    fs::create_symlink(temp / "private", staging.path() / "part.mtl");
    EXPECT_FALSE(put());
    EXPECT_THAT(names_in(folder), ElementsAre(staging.path().filename(), "part.obj"));
    fs::create_symlink(temp / "private", staging.path() / "part.obj");
    EXPECT_TRUE(put());
    EXPECT_EQ(read_text(output), "new mesh");
}

TEST_F(PutInPlace, MakesTheFoldersOfFilesThatGoWithTheOutput)
{
    write_text(staging.path() / "textures/small/a.png", "pixels");
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(folder / "textures/small/a.png"), "pixels");
    EXPECT_THAT(s2s_places_of(staging, output), ::testing::IsEmpty());
}

TEST_F(PutInPlace, KnowsThePlacesThatOfTheOutputLast)
{
    write_text(staging.path() / "textures/a.png", "pixels");
    EXPECT_THAT(s2s_places_of(staging, output),
                ::testing::AllOf(::testing::SizeIs(3), ::testing::Contains(folder / "textures/a.png"),
                                 ::testing::Contains(folder / "part.mtl")));
    EXPECT_EQ(s2s_places_of(staging, output).back(), output);
}

TEST_F(PutInPlace, MovesTheFilesOfItsFolderWhateverTakesTheFoldersPlace)
{
    write_text(temp / "private/part.obj", "not to be moved");
    fs::rename(staging.path(), folder / "elsewhere");
    fs::create_directory_symlink(temp / "private", staging.path());
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(output), "new mesh");
    EXPECT_EQ(read_text(temp / "private/part.obj"), "not to be moved");
}

TEST_F(PutInPlace, StaysInTheFolderOfTheOutputWhateverTakesThatFoldersPlace)
{
    write_text(temp / "private/part.obj", "not to be overwritten");
    fs::rename(folder, temp / "out moved");
    fs::create_directory_symlink(temp / "private", folder);
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(temp / "out moved/part.obj"), "new mesh");
    EXPECT_EQ(read_text(temp / "private/part.obj"), "not to be overwritten");
}

TEST_F(PutInPlace, FollowsNoLinkInTheFolderOfTheOutput)
{
    write_text(temp / "private/a.png", "not to be overwritten");
    write_text(staging.path() / "textures/a.png", "pixels");
    fs::create_directory_symlink(temp / "private", folder / "textures");
    EXPECT_TRUE(put());
    EXPECT_EQ(read_text(temp / "private/a.png"), "not to be overwritten");
    EXPECT_FALSE(fs::exists(output));
}

} // namespace
