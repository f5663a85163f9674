#include "host/hostStagingName.h"
#include "kit/kitOrdinaryUser.h"
#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

TEST(HostStagingName, IsThatOfAFolderOfTheEngine)
{
    kitTempFolder const folder;
    folder.write(".vmr-42e7a8-1234-il0OIg/part.igs", "x");
    EXPECT_TRUE(host_is_staging_folder(folder / ".vmr-42e7a8-1234-il0OIg"));
}

TEST(HostStagingName, IsNotThatOfAnyOtherFolder)
{
    kitTempFolder const folder;
    for (auto const * name :
         {"results", ".vmr-", ".vmr-42e7a8-1234", ".vmr-42e7a8-1234-", ".vmr-42e7a8-x-il0OIg",
          "x.vmr-42e7a8-1234-il0OIg", ".vmr-42e7a8-1234-il0OIg.old"}) {
        folder.write(std::string(name) + "/file", "x");
        EXPECT_FALSE(host_is_staging_folder(folder / name)) << name;
    }
    EXPECT_FALSE(host_is_staging_folder(""));
    EXPECT_FALSE(host_is_staging_folder(folder / ".vmr-42e7a8-1234-il0OIg"));
}

TEST(HostStagingName, IsNotThatOfALinkOrAFile)
{
    kitTempFolder const folder;
    folder.write("results/file", "x");
    std::filesystem::create_directory_symlink(folder / "results", folder / ".vmr-42e7a8-1234-il0OIg");
    EXPECT_FALSE(host_is_staging_folder(folder / ".vmr-42e7a8-1234-il0OIg"));
    EXPECT_FALSE(host_is_staging_folder(folder.write(".vmr-42e7a8-1234-il0OIh", "x")));
}

TEST(HostStagingName, IsNotThatOfAFolderOfAnotherUser)
{
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root can make folders of others";
    }
    kitTempFolder const folder;
    folder.write(".vmr-42e7a8-1234-il0OIg/part.igs", "x");
    give_to_ordinary_user(folder / ".vmr-42e7a8-1234-il0OIg");
    EXPECT_FALSE(host_is_staging_folder(folder / ".vmr-42e7a8-1234-il0OIg"));
}
