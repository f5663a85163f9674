#include "host/hostPlaces.h"
#include "kit/kitTempFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class HostPlaces : public testing::Test {
protected:
    HostPlaces() { ::setenv("HOME", (folder / "home/me").c_str(), 1); }

    hostPlaces places(std::string const & input) const
    {
        hostJob job;
        job.inputs.push_back(
            {.file = input, .module = "/opt/own/own.so", .format = {}, .options = {}, .refused = {}});
        job.output.file = folder / "out/part.igs";
        job.output.module = "/opt/other/other.so";
        return host_places_of(job);
    }

    kitTempFolder const folder;
    std::string const part = folder.write("home/me/models/part.step", "");
    std::string const at_home = folder.write("home/me/part.step", "");
    std::string const hidden = folder.write("home/me/.ssh/id", "");
    std::string const others = folder.write("home/you/part.step", "");
    std::string const above = folder.write("home/part.step", "");
};

TEST_F(HostPlaces, AreTheInputWithItsFolderAndTheModules)
{
    auto const read = places(part).read;
    EXPECT_THAT(read, Contains(part));
    EXPECT_THAT(read, Contains(folder / "home/me/models"));
    EXPECT_THAT(read, Contains("/opt/own"));
    EXPECT_THAT(read, Contains("/opt/other"));
    EXPECT_THAT(read, Contains("/usr/lib"));
    EXPECT_THAT(read, Not(Contains("/")));
    EXPECT_THAT(read, Not(Contains("/etc")));
}

TEST_F(HostPlaces, AreWrittenInTheFolderOfTheOutputOnly)
{
    EXPECT_THAT(places(part).write, ElementsAre("/dev/null", folder / "out"));
}

TEST_F(HostPlaces, AreOfAHomeOnlyWhatIsNotHidden)
{
    auto const read = places(at_home).read;
    EXPECT_THAT(read, Contains(at_home));
    EXPECT_THAT(read, Contains(std::filesystem::canonical(folder / "home/me/models").string()));
    EXPECT_THAT(read, Not(Contains(folder / "home/me")));
    EXPECT_THAT(read, Each(Not(testing::HasSubstr("/.ssh"))));
}

TEST_F(HostPlaces, AreOfAFolderAboveTheHomeOnlyTheInput)
{
    auto const read = places(above).read;
    EXPECT_THAT(read, Contains(above));
    EXPECT_THAT(read, Not(Contains(folder / "home")));
    EXPECT_THAT(places("/part.step").read, Not(Contains("/")));
}

TEST_F(HostPlaces, AreThoseOfOthersWithoutDifference)
{
    EXPECT_THAT(places(others).read, Contains(folder / "home/you"));
}

TEST_F(HostPlaces, AreTheCurrentFolderForANameAlone)
{
    EXPECT_THAT(places("part.step").read, Contains("."));
}

TEST_F(HostPlaces, AreNotWrittenByAComparison)
{
    hostJob job;
    job.comparison.emplace();
    job.comparison->a.file = part;
    job.comparison->b.file = others;
    auto const compared = host_places_of(job);
    EXPECT_THAT(compared.write, ElementsAre("/dev/null"));
    EXPECT_THAT(compared.read, Contains(part));
    EXPECT_THAT(compared.read, Contains(folder / "home/you"));
}
