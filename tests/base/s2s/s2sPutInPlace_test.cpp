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
        fs::create_directory(staging);
        write_text(staging / "part.obj", "new mesh");
        write_text(staging / "part.mtl", "new colours");
    }

    s2sFailure put(std::vector<fs::path> const & inputs = {}) const
    {
        return s2s_put_in_place(staging, output, inputs);
    }

    kitTempFolder folder;
    fs::path staging = folder / "staging";
    fs::path output = folder / "part.obj";
};

TEST_F(PutInPlace, MovesAllFiles)
{
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(folder / "part.obj"), "new mesh");
    EXPECT_EQ(read_text(folder / "part.mtl"), "new colours");
    EXPECT_TRUE(fs::is_empty(staging));
}

TEST_F(PutInPlace, ReplacesOldFiles)
{
    write_text(folder / "part.obj", "old mesh");
    write_text(folder / "part.mtl", "old colours");
    EXPECT_FALSE(put());
    EXPECT_EQ(read_text(folder / "part.obj"), "new mesh");
    EXPECT_EQ(read_text(folder / "part.mtl"), "new colours");
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
}

TEST_F(PutInPlace, TakesAwayWhatItHasAddedWhenALaterStepFails)
{
    fs::create_directories(folder / "part.obj/in the way");
    EXPECT_TRUE(put());
    EXPECT_THAT(names_in(folder.path()), ElementsAre("part.obj", "staging"));
}

TEST_F(PutInPlace, FailsWithoutTheChiefFile)
{
    fs::remove(staging / "part.obj");
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

} // namespace
