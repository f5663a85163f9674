#include <gtest/gtest.h>

#include "ap/apPosixOperations.h"
#include "kit/kitTempFolder.h"
#include "s2s/s2sTranslatorLoader.h"

namespace {

class TranslatorLoader : public ::testing::Test {
protected:
    s2sFailure check(std::string const & manifest)
    {
        folder.write("m.json", manifest);
        return s2sTranslatorLoader(&operations).check(folder.write("m.so", ""));
    }

    kitTempFolder folder;
    apPosixLibraryLoaderOperations operations;
};

TEST_F(TranslatorLoader, AcceptsAModuleOfThisVersion)
{
    EXPECT_FALSE(check(R"({"interface": 1})"));
}

TEST_F(TranslatorLoader, RefusesAModuleOfAnotherVersion)
{
    for (auto const manifest : {R"({"interface": 2})", R"({"interface": "1"})", "{}"}) {
        auto const failure = check(manifest);
        ASSERT_TRUE(failure) << manifest;
        EXPECT_EQ(failure->arguments[0], utTextArgument(folder / "m.so"));
    }
}

TEST_F(TranslatorLoader, NamesAManifestThatCannotBeRead)
{
    for (auto const manifest : {"", "[1]", "{\"interface\": 1"}) {
        auto const failure = check(manifest);
        ASSERT_TRUE(failure) << manifest;
        EXPECT_EQ(failure->arguments[0], utTextArgument(folder / "m.json"));
    }
}

TEST_F(TranslatorLoader, NamesAModuleThatIsMissing)
{
    auto const failure = s2sTranslatorLoader(&operations).check("/nowhere/m.so");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->arguments[0], utTextArgument("/nowhere/m.so"));
}

} // namespace
