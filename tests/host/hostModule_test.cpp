#include "host/hostModule.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

namespace {

std::string refusal(std::string const & module, std::string const & format, bool for_reading)
{
    sdkText failure;
    EXPECT_EQ(hostModule::load(module, format, for_reading, failure), nullptr);
    EXPECT_TRUE(failure.fits());
    return failure.formatted();
}

bool has(std::string const & text, std::string const & part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(HostModule, LoadsAModuleWithItsManifest)
{
    sdkText failure;
    auto const module = hostModule::load(ODD_MODULE, "Box", true, failure);
    ASSERT_NE(module, nullptr) << failure.formatted();
    ASSERT_EQ(module->resources().size(), 1U);
    EXPECT_EQ(module->resources().front().name, "oddSize");
}

TEST(HostModule, RefusesAFormatOrSideThatIsNotDeclared)
{
    EXPECT_TRUE(has(refusal(ODD_MODULE, "Other", true), "cannot read the format Other"));
    EXPECT_TRUE(has(refusal(ODD_MODULE, "Waits", false), "cannot write the format Waits"));
}

TEST(HostModule, RefusesAModuleOfAnotherInterfaceBeforeItIsOpened)
{
    kitTempFolder const folder;
    folder.write("new.json", R"({"interface": 99, "formats": []})");
    EXPECT_TRUE(has(refusal(folder / "new.so", "X", true), "interface version 99"));
}

TEST(HostModule, SaysWhatIsWrongWithAManifest)
{
    kitTempFolder const folder;
    EXPECT_TRUE(has(refusal(folder / "absent.so", "X", true), "cannot be opened"));
    folder.write("broken.json", "{\"interface\": 1,");
    EXPECT_TRUE(has(refusal(folder / "broken.so", "X", true), "is not valid"));
}

TEST(HostModule, SaysWhyALibraryCannotBeLoaded)
{
    kitTempFolder const folder;
    folder.write("text.json",
                 R"({"interface": 1, "formats": [{"name": "X", "sides": ["input"], "resources": []}]})");
    folder.write("text.so", "no library");
    EXPECT_TRUE(has(refusal(folder / "text.so", "X", true), "cannot be loaded"));
}

TEST(HostModule, ThrowsWhenAModuleDoesNotMakeWhatItDeclares)
{
    sdkText failure;
    auto const module = hostModule::load(ODD_MODULE, "NotMade", true, failure);
    ASSERT_NE(module, nullptr);
    class Silent : public sdkReporter {
        void message(sdkStream, sdkText const &) override {}
    } reporter;
    std::vector<sdkText> problems;
    sdkOptions const options(module->resources(), {}, problems);
    sdkContext context(options, reporter, "file");
    EXPECT_THROW(module->make_reader(context), std::logic_error);
    EXPECT_THROW(module->make_writer(context), std::logic_error);
}
