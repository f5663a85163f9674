#include "pages/sglReachedFile.h"

#include "kit/kitTempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

struct ReachedFile : testing::Test {
    kitTempFolder folder;

    bool same(std::string const & a, std::string const & b) const
    {
        bool const result = sglReachedFile(utString(folder / a)).is(utString(folder / b));
        EXPECT_EQ(sglReachedFile(utString(folder / b)).is(utString(folder / a)), result) << a << " and " << b;
        return result;
    }
};

} // namespace

TEST_F(ReachedFile, IsReachedByItsOwnPathThereOrNot)
{
    EXPECT_TRUE(same("part.igs", "part.igs"));
    folder.write("part.igs", "");
    EXPECT_TRUE(same("part.igs", "part.igs"));
}

TEST_F(ReachedFile, IsReachedThroughALinkToIt)
{
    folder.write("part.igs", "");
    std::filesystem::create_symlink(folder / "part.igs", folder / "link.igs");
    EXPECT_TRUE(same("part.igs", "link.igs"));
}

TEST_F(ReachedFile, IsReachedThroughALinkToItsFolderBeforeItIsThere)
{
    std::filesystem::create_directory(folder / "out");
    std::filesystem::create_directory_symlink(folder / "out", folder / "link");
    EXPECT_TRUE(same("out/part.igs", "link/part.igs"));
    EXPECT_TRUE(same("out/part.igs", "out/../link/part.igs"));
    EXPECT_FALSE(same("out/part.igs", "link/other.igs"));
}

TEST_F(ReachedFile, IsNotAnotherOneThatIsThereOrNot)
{
    folder.write("part.igs", "same content");
    folder.write("other.igs", "same content");
    EXPECT_FALSE(same("part.igs", "other.igs"));
    EXPECT_FALSE(same("part.igs", "PART.igs"));
    EXPECT_FALSE(same("gone.igs", "GONE.igs"));
    EXPECT_FALSE(same("gone/part.igs", "lost/part.igs"));
}
