#include "ap/apSplitPath.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    char const * path;
    char const * directory;
    char const * name;
    char const * extension;
};

std::ostream & operator<<(std::ostream & out, Case const & one)
{
    return out << one.path;
}

} // namespace

class SplitPath : public testing::TestWithParam<Case> {};

TEST_P(SplitPath, GivesDirectoryNameAndExtension)
{
    utString directory;
    utString name;
    utString extension;
    apSplitPath::split_path(GetParam().path, directory, name, extension);
    EXPECT_EQ(directory.str(), GetParam().directory);
    EXPECT_EQ(name.str(), GetParam().name);
    EXPECT_EQ(extension.str(), GetParam().extension);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, SplitPath,
    testing::Values(Case{"/a/b/part.step", "/a/b", "part", "step"}, Case{"part.step", "", "part", "step"},
                    Case{"/part.step", "/", "part", "step"}, Case{"/a.b/part", "/a.b", "part", ""},
                    Case{"/a/b/", "/a/b", "", ""}, Case{"a//b.c", "a", "b", "c"}, Case{"", "", "", ""},
                    Case{"/", "/", "", ""}, Case{"a.b.c", "", "a.b", "c"}, Case{".hidden", "", ".hidden", ""},
                    Case{".hidden.txt", "", ".hidden", "txt"}, Case{"name.", "", "name.", ""},
                    Case{"/a/..", "/a", "..", ""}, Case{"..x", "", "..x", ""},
                    Case{"a\\b.c", "", "a\\b", "c"}, Case{"/\xC3\xA4/\xFF.stl", "/\xC3\xA4", "\xFF", "stl"}));

TEST(SplitPath, TakesAVeryLongPath)
{
    std::string const long_directory(4000, 'd');
    utString directory;
    utString name;
    utString extension;
    apSplitPath::split_path("/" + long_directory + "/n.e", directory, name, extension);
    EXPECT_EQ(directory.length(), 4001);
    EXPECT_EQ(name, utString("n"));
}
