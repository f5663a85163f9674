#include "host/hostArguments.h"

#include <gtest/gtest.h>

namespace {

using Wish = hostArguments::Wish;

hostArguments read(std::vector<char const *> words)
{
    words.insert(words.begin(), "vmr-host");
    return host_read_arguments(static_cast<int>(words.size()), words.data());
}

} // namespace

TEST(HostArguments, AreNotNeededForAJob)
{
    auto const arguments = read({});
    EXPECT_EQ(arguments.wish, Wish::job);
    EXPECT_TRUE(arguments.folders.empty());
}

TEST(HostArguments, NameFoldersThatAreRemoved)
{
    auto const arguments = read({"--remove-when-alone", "/a", "--remove-when-alone", "--help"});
    EXPECT_EQ(arguments.wish, Wish::job);
    EXPECT_EQ(arguments.folders, (std::vector<std::string>{"/a", "--help"}));
}

TEST(HostArguments, AskForHelpOrTheVersion)
{
    EXPECT_EQ(read({"--help"}).wish, Wish::help);
    EXPECT_EQ(read({"--version"}).wish, Wish::version);
}

TEST(HostArguments, AreRefusedWhenTheyAreNotUnderstood)
{
    for (auto const * word : {"part.step", "-h", "--remove", "", "--remove-when-alone"}) {
        auto const arguments = read({word});
        EXPECT_EQ(arguments.wish, Wish::nothing) << word;
        EXPECT_EQ(arguments.unknown, word);
        EXPECT_TRUE(arguments.folders.empty());
    }
}
