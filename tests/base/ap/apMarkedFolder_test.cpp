#include <cerrno>

#include <gtest/gtest.h>
#include <unistd.h>

#include "ap/apMarkedFolder.h"
#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

namespace fs = std::filesystem;

namespace {

class MarkedFolder : public ::testing::Test {
protected:
    apMarkedFolder make(std::string const & name = "work") const
    {
        return apMarkedFolder::make(apFolder::open(temp.path()), name);
    }
    bool known(std::string const & name = "work") const
    {
        return apMarkedFolder::open(temp / name).is_open();
    }

    kitTempFolder temp;
};

TEST_F(MarkedFolder, IsPrivateAndKnownAgain)
{
    auto const made = make();
    ASSERT_TRUE(made.is_open());
    EXPECT_EQ(temp.mode("work"), 0700U);
    EXPECT_EQ(temp.mode("work/.vmr-mark"), 0600U);
    EXPECT_TRUE(known());
    EXPECT_EQ(apMarkedFolder::open(temp / "work").folder().identity(), made.folder().identity());
}

TEST_F(MarkedFolder, IsNotMadeWhereSomethingIs)
{
    temp.write("work/part.cad", "mine");
    EXPECT_FALSE(make().is_open());
    EXPECT_EQ(errno, EEXIST);
    EXPECT_FALSE(fs::exists(temp / "work/.vmr-mark"));
    EXPECT_EQ(temp.read("work/part.cad"), "mine");
}

TEST_F(MarkedFolder, IsNotKnownAgainUnderAnotherName)
{
    make();
    fs::rename(temp / "work", temp / "results");
    EXPECT_FALSE(known("results"));
}

TEST_F(MarkedFolder, AnotherFolderIsNotTakenForIt)
{
    make();
    fs::rename(temp / "work", temp / "away");
    EXPECT_FALSE(known());
    fs::create_directory(temp / "work");
    EXPECT_FALSE(known()) << "without a mark";
    fs::copy_file(temp / "away/.vmr-mark", temp / "work/.vmr-mark");
    EXPECT_FALSE(known()) << "with the mark of another";
    fs::remove_all(temp / "work");
    fs::create_directory_symlink("away", temp / "work");
    EXPECT_FALSE(known()) << "behind a link";
}

TEST_F(MarkedFolder, AMarkThatIsALinkOrHasAnotherNameIsNone)
{
    make();
    fs::rename(temp / "work/.vmr-mark", temp / "mark");
    fs::create_symlink("../mark", temp / "work/.vmr-mark");
    EXPECT_FALSE(known());
    fs::remove(temp / "work/.vmr-mark");
    fs::create_hard_link(temp / "mark", temp / "work/.vmr-mark");
    EXPECT_FALSE(known());
    fs::remove(temp / "mark");
    EXPECT_TRUE(known());
}

TEST_F(MarkedFolder, OfAnotherUserIsNotTaken)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make folders of other users";
    make();
    give_to_ordinary_user(temp / "work");
    EXPECT_FALSE(known());
    give_to_ordinary_user(temp / "work/.vmr-mark");
    EXPECT_FALSE(known());
    EXPECT_EQ(apFolder::open(temp / "work").names(), std::vector<std::string>{".vmr-mark"});
}

TEST_F(MarkedFolder, IsLockedAsLongAsItsMakerLives)
{
    {
        auto const made = make();
        EXPECT_FALSE(apMarkedFolder::open(temp / "work").lock());
    }
    EXPECT_TRUE(apMarkedFolder::open(temp / "work").lock());
}

TEST_F(MarkedFolder, GoesWithAllThatItHolds)
{
    auto const made = make();
    temp.write("work/deep/file", "");
    temp.write("private/file", "mine");
    fs::create_directory_symlink("../private", temp / "work/link");
    made.remove();
    EXPECT_FALSE(temp.exists("work"));
    EXPECT_EQ(temp.read("private/file"), "mine");
}

TEST_F(MarkedFolder, StaysWhileItIsKept)
{
    auto const made = make();
    auto const guarded = apMarkedFolder::open(temp / "work");
    temp.write("work/part.mtl", "mine");
    EXPECT_TRUE(made.set_kept(true));
    made.remove();
    guarded.remove();
    EXPECT_EQ(temp.read("work/part.mtl"), "mine");
    EXPECT_FALSE(known());
    EXPECT_TRUE(made.set_kept(false));
    EXPECT_TRUE(known());
    guarded.remove();
    EXPECT_FALSE(temp.exists("work"));
}

TEST_F(MarkedFolder, WhatTookItsPlaceStaysWhenItGoes)
{
    auto const made = make();
    temp.write("work/half.cad", "half");
    temp.write("results/part.cad", "mine");
    fs::rename(temp / "work", temp / "away");
    fs::create_directory_symlink("results", temp / "work");
    made.remove();
    EXPECT_EQ(temp.read("results/part.cad"), "mine");
    EXPECT_TRUE(fs::is_symlink(temp / "work"));
    EXPECT_TRUE(fs::is_empty(temp / "away"));
    fs::remove(temp / "work");
    fs::rename(temp / "results", temp / "work");
    made.remove();
    EXPECT_EQ(temp.read("work/part.cad"), "mine");
}

TEST_F(MarkedFolder, KeepsItsMarkWhileItCannotBeEmptied)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make folders of other users";
    auto const made = make();
    temp.write("work/results/part.cad", "theirs");
    give_to_ordinary_user(temp / "work/results");
    made.remove();
    EXPECT_EQ(temp.read("work/results/part.cad"), "theirs");
    EXPECT_TRUE(known());
}

} // namespace
