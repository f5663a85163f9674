#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ap/apChangeable.h"
#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

namespace fs = std::filesystem;

namespace {

class Changeable : public ::testing::Test {
protected:
    Changeable()
    {
        temp.write("home/config/modules/a.so", "");
        temp.write("home/config/modules/a.json", "");
        for (auto const name : {"home", "home/config", "home/config/modules"})
            set(name, 0755);
        for (auto const name : {"home/config/modules/a.so", "home/config/modules/a.json"})
            set(name, 0644);
    }
    void set(std::string const & name, unsigned mode) const
    {
        fs::permissions(temp.path() / name, static_cast<fs::perms>(mode));
    }
    std::string found() const { return ap_changeable_by_others(temp / "home/config/modules"); }

    kitTempFolder temp;
};

TEST_F(Changeable, IsNothingOfAFolderThatItsOwnerAloneWrites)
{
    EXPECT_EQ(found(), "");
    EXPECT_EQ(ap_changeable_by_others(temp / "none"), "");
}

TEST_F(Changeable, IsWhatAllMayWrite)
{
    for (auto const name : {"home/config/modules/a.json", "home/config/modules/a.so", "home/config/modules",
                            "home/config", "home"}) {
        set(name, 0757);
        EXPECT_EQ(found(), temp / name);
        set(name, 0755);
    }
}

TEST_F(Changeable, IsAFolderWithTheStickyBitButNotWhatLiesBelowIt)
{
    set("home", 01777);
    EXPECT_EQ(found(), "");
    set("home/config/modules", 01777);
    EXPECT_EQ(found(), temp / "home/config/modules");
}

TEST_F(Changeable, IsWhatLinksLeadTo)
{
    temp.write("build/a.so", "");
    fs::remove(temp / "home/config/modules/a.so");
    fs::create_symlink(temp / "build/a.so", temp / "home/config/modules/a.so");
    EXPECT_EQ(found(), "");
    set("build", 0777);
    EXPECT_EQ(found(), temp / "build");
    fs::create_directory_symlink(temp / "build", temp / "home/config/linked");
    EXPECT_EQ(ap_changeable_by_others(temp / "home/config/linked"), temp / "home/config/linked");
}

TEST_F(Changeable, IsWhatAGroupWithOthersMayWrite)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give files to any group";
    set("home/config", 0775);
    EXPECT_EQ(found(), "") << "the group of the user alone";
    ASSERT_EQ(chown((temp / "home/config").c_str(), 0, ordinary_user), 0);
    EXPECT_EQ(found(), temp / "home/config");
}

TEST_F(Changeable, IsWhatBelongsToAnotherUser)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make files of other users";
    give_to_ordinary_user(temp / "home/config/modules/a.so");
    EXPECT_EQ(found(), temp / "home/config/modules/a.so");
    give_to_ordinary_user(temp / "home/config");
    EXPECT_EQ(found(), temp / "home/config");
    fs::rename(temp / "home/config", temp / "home/moved");
    give_to_ordinary_user(temp / "home/moved/modules");
    EXPECT_TRUE(as_ordinary_user([&] {
        // Files of root are as safe as one's own.
        return ap_changeable_by_others(temp / "home/moved/modules").empty();
    }));
}

} // namespace
