#include "sdb/sdbPathList.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "kit/kitTempFolder.h"

namespace {

std::vector<std::string> found_in(kitTempFolder const & temp, char const * extension)
{
    utStringcoDynArr paths;
    sdbPathList(utString(temp.path().string())).search_by_extension(paths, extension);
    std::vector<std::string> names;
    for (auto const & path : paths) {
        EXPECT_EQ(std::filesystem::path(path.str()).parent_path().string(), temp.path().string());
        names.push_back(std::filesystem::path(path.str()).filename().string());
    }
    return names;
}

using Names = std::vector<std::string>;

} // namespace

TEST(PathList, GivesTheFilesOfAnExtensionInTheOrderOfTheirNames)
{
    kitTempFolder const temp;
    for (auto const * const name : {"step.rsc", "IGES.RSC", "notes.txt", "brep.rsc", "rsc", "a.rsc.bak"})
        temp.write(name, "");
    std::filesystem::create_directory(temp / "folder.rsc");
    EXPECT_EQ(found_in(temp, "rsc"), (Names{"IGES.RSC", "brep.rsc", "step.rsc"}));
}

TEST(PathList, TakesAnExtensionWithItsDot)
{
    kitTempFolder const temp;
    temp.write("step.rsc", "");
    EXPECT_EQ(found_in(temp, ".rsc"), Names{"step.rsc"});
}

TEST(PathList, AppendsToWhatIsThere)
{
    kitTempFolder const temp;
    temp.write("step.rsc", "");
    utStringcoDynArr paths{"first"};
    sdbPathList(utString(temp.path().string())).search_by_extension(paths, "rsc");
    ASSERT_EQ(paths.count(), 2);
    EXPECT_EQ(paths[0], utString("first"));
}

TEST(PathList, IsEmptyForADirectoryThatCannotBeRead)
{
    utStringcoDynArr paths;
    sdbPathList("/no/such/directory").search_by_extension(paths, "rsc");
    EXPECT_TRUE(paths.empty());
}
